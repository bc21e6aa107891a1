using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The dashes of edges.</summary>
public sealed class EdgeType : DashTypeCommand
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeType()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeType)
    {
    }
}
