using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>A font of an SVG document, and where it is stored.</summary>
public class FontStoringArgs
{
    internal FontStoringArgs(string family, bool bold, bool italic, string sourceFontFileName)
    {
        FontFamily = family;
        IsBold = bold;
        IsItalic = italic;
        SourceFontFileName = sourceFontFileName;
    }

    /// <summary>Gets the font family that the document names.</summary>
    public string FontFamily { get; }

    /// <summary>Gets whether it is the bold face of the family.</summary>
    public bool IsBold { get; }

    /// <summary>Gets whether it is the italic or oblique face of the family.</summary>
    public bool IsItalic { get; }

    /// <summary>Gets the path of the font file that the text was laid out with.</summary>
    public string SourceFontFileName { get; }

    /// <summary>Gets or sets how the font is stored.</summary>
    public FontStoreType FontStoreType { get; set; } = FontStoreType.Stream;

    /// <summary>Gets or sets the URI of the font as the document states it; required for
    /// <see cref="FontStoreType.Stream"/>.</summary>
    public string FontFileUri { get; set; } = "";

    /// <summary>Returns the content of the font file.</summary>
    /// <returns>The content of the font file.</returns>
    /// <exception cref="ImageSaveException">The file does not exist any more or cannot be read.</exception>
    public byte[] GetFontData()
    {
        try
        {
            return File.ReadAllBytes(SourceFontFileName);
        }
        catch (System.Exception e) when (e is IOException or System.UnauthorizedAccessException)
        {
            throw new ImageSaveException($"The font '{SourceFontFileName}' could not be read: {e.Message}");
        }
    }
}
