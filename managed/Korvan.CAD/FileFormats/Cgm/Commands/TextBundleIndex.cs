using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes texts take.</summary>
public sealed class TextBundleIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public TextBundleIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextBundleIndex)
    {
    }
}
