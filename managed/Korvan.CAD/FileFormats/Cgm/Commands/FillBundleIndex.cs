using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes areas take.</summary>
public sealed class FillBundleIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public FillBundleIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.FillBundleIndex)
    {
    }
}
