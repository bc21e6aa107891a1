using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How edges and their dashes end.</summary>
public sealed class EdgeCap : CapCommand
{
    /// <summary>Creates the element with its defaults.</summary>
    public EdgeCap()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeCap)
    {
    }
}
