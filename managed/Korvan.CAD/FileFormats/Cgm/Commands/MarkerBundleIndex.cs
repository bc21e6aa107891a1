using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes markers take.</summary>
public sealed class MarkerBundleIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public MarkerBundleIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.MarkerBundleIndex)
    {
    }
}
