using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>The code page of the character numbers in a compiled shape font.</summary>
public sealed class ShxCodePage
{
    private string _fontName = "";

    /// <summary>Creates an assignment without a font.</summary>
    public ShxCodePage()
    {
    }

    /// <summary>Creates an assignment.</summary>
    /// <param name="fontName">The file name of the font, with or without its extension.</param>
    /// <param name="codePage">The code page.</param>
    public ShxCodePage(string fontName, CodePages codePage)
    {
        FontName = fontName;
        CodePage = codePage;
    }

    /// <summary>Gets or sets the file name of the font, with or without its extension.</summary>
    public string FontName
    {
        get => _fontName;
        set
        {
            Verify.NotNull(value);
            _fontName = value;
        }
    }

    /// <summary>Gets or sets the code page.</summary>
    public CodePages CodePage { get; set; } = CodePages.Default;

    /// <inheritdoc/>
    public override string ToString() => $"{FontName}: {CodePage}";
}
