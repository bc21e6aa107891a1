using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes edges take.</summary>
public sealed class EdgeBundleIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeBundleIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeBundleIndex)
    {
    }
}
