using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The font of texts, by its place in the font list.</summary>
public sealed class TextFontIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public TextFontIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextFontIndex)
    {
    }
}
