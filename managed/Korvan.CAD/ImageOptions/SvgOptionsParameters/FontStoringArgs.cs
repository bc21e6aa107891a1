using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>A font that a scalable graphic uses, and where it is kept.</summary>
public class FontStoringArgs
{
    internal FontStoringArgs(string family, bool bold, bool italic, string sourceFontFileName)
    {
        FontFamily = family;
        IsBold = bold;
        IsItalic = italic;
        SourceFontFileName = sourceFontFileName;
    }

    /// <summary>Gets the family that texts of the document name.</summary>
    public string FontFamily { get; }

    /// <summary>Gets whether it is the heavy face of the family.</summary>
    public bool IsBold { get; }

    /// <summary>Gets whether it is the slanted face of the family.</summary>
    public bool IsItalic { get; }

    /// <summary>Gets the path of the font file that the texts were laid out with.</summary>
    public string SourceFontFileName { get; }

    /// <summary>Gets or sets where the font is kept.</summary>
    public FontStoreType FontStoreType { get; set; } = FontStoreType.Stream;

    /// <summary>Gets or sets where the font is, as the document shall say it; needed for
    /// <see cref="FontStoreType.Stream"/>.</summary>
    public string FontFileUri { get; set; } = "";

    /// <summary>Gives the content of the font file.</summary>
    /// <returns>The content of the font file.</returns>
    /// <exception cref="ImageSaveException">The file is gone or cannot be read.</exception>
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
