using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Input;

namespace Korvan.CAD;

/// <summary>Options for loading files and streams.</summary>
public class LoadOptions
{
    /// <summary>Creates options with default values.</summary>
    public LoadOptions()
    {
    }

    /// <summary>Gets or sets the code page of text in the drawing. <see cref="CodePages.Default"/> uses the code page
    /// that the drawing declares; set another one for drawings that declare a wrong one.</summary>
    public CodePages SpecifiedEncoding { get; set; }

    /// <summary>Gets or sets the code page of the double bytes in sequences <c>\M+nXXXX</c>.
    /// <see cref="MifCodePages.Undefined"/> uses the code page of the digit n; set another one for drawings with wrong
    /// digits.</summary>
    public MifCodePages SpecifiedMifEncoding { get; set; }

    /// <summary>Gets or sets whether malformed escape sequences for characters are decoded as well: with a lower-case
    /// letter after the backslash, a doubled backslash, fewer than four digits in <c>\U+XXXX</c>, no code page in
    /// <c>\M+XXXX</c> (then <see cref="SpecifiedMifEncoding"/> has to be set). By default, such sequences are kept as
    /// text.</summary>
    public bool RecoverMalformedCifMif { get; set; }

    /// <summary>Gets or sets folders with fonts for rendering the drawing, in addition to installed fonts. Empty by
    /// default.</summary>
    public string[] CustomFontFolders { get; set; } = [];

    /// <summary>Gets or sets how the fonts of <see cref="CustomFontFolders"/> are used.</summary>
    public CustomFontFolderOptions CustomFontFolderOptions { get; set; }

    /// <summary>Gets or sets how a raster image is vectorized to a drawing; <see langword="null"/> to load it as an
    /// image. Not used for drawing files.</summary>
    public VectorizationOptions? VectorizationOptions { get; set; }

    /// <summary>Gets or sets whether disposing the image also closes the stream that it was read from. By default, a
    /// stream that the caller opened stays open.</summary>
    public bool UnloadOnDispose { get; set; }

    /// <summary>Gets or sets whether loading continues after a defect: the damaged object is left out, and a message is
    /// added to <see cref="Errors"/>. By default, a defect ends the load.</summary>
    public bool IgnoreErrors { get; set; }

    /// <summary>Gets or sets the colour of pixels that are missing in a damaged BMP or PSD file which is loaded with
    /// <see cref="IgnoreErrors"/>; empty for the default of the format: black or transparent.</summary>
    public Color DataBackgroundColor { get; set; }

    /// <summary>Gets the messages about defects of the file, one for each object that was left out and one for each
    /// value that was repaired without a loss.</summary>
    public List<string> Errors { get; } = [];

    /// <summary>Gets the defects whose messages are in <see cref="Errors"/>.</summary>
    internal List<LoadDefect> Defects { get; } = [];

    /// <summary>Adds a defect that does not end the load.</summary>
    internal void Report(LoadDefect defect)
    {
        if (Errors.Count == 0)
        {
            Defects.Clear();
        }

        Defects.Add(defect);
        Errors.Add(defect.ToString());
    }

    /// <summary>Adds the message of an exception that does not end the load, and its defect.</summary>
    internal void Report(ImageLoadException failure)
    {
        if (failure.Defect is { } defect)
        {
            Report(defect);
        }
        else
        {
            Errors.Add(failure.Message);
        }
    }
}
