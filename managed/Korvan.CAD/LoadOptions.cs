using System.Collections.Generic;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>How a file or stream is read.</summary>
public class LoadOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public LoadOptions()
    {
    }

    /// <summary>Gets or sets the code page that texts are read in. <see cref="CodePages.Default"/> takes the one
    /// that the drawing states; other values help with drawings that state a wrong one.</summary>
    public CodePages SpecifiedEncoding { get; set; }

    /// <summary>Gets or sets the code page of the double bytes in sequences <c>\M+nXXXX</c>.
    /// <see cref="MifCodePages.Undefined"/> takes the one whose digit n stands in the sequence; other values help with
    /// drawings whose digits are wrong.</summary>
    public MifCodePages SpecifiedMifEncoding { get; set; }

    /// <summary>Gets or sets whether sequences for single letters are also read where they are damaged: the letter
    /// after the backslash in lower case, the backslash doubled, fewer than four digits in <c>\U+XXXX</c>, no code page
    /// in <c>\M+XXXX</c> (then <see cref="SpecifiedMifEncoding"/> has to be set). By default such sequences stay in the
    /// text as they are.</summary>
    public bool RecoverMalformedCifMif { get; set; }

    /// <summary>Gets or sets folders whose fonts the drawing is drawn with, beside those of the system. Empty by
    /// default.</summary>
    public string[] CustomFontFolders { get; set; } = [];

    /// <summary>Gets or sets how the fonts of <see cref="CustomFontFolders"/> are used.</summary>
    public CustomFontFolderOptions CustomFontFolderOptions { get; set; }

    /// <summary>Gets or sets how a picture is loaded as a drawing of lines and areas; nothing to load it as a picture.
    /// Files that are drawings do not heed it.</summary>
    public VectorizationOptions? VectorizationOptions { get; set; }

    /// <summary>Gets or sets whether disposing the image also closes the stream it was read from. A stream that the
    /// caller opened stays open by default.</summary>
    public bool UnloadOnDispose { get; set; }

    /// <summary>Gets or sets whether reading goes on after damage in one object: the object is left out, what
    /// was wrong is added to <see cref="Errors"/>. By default damage ends the load.</summary>
    public bool IgnoreErrors { get; set; }

    /// <summary>Gets or sets the colour of pixels that a damaged BMP or PSD file does not hold, when <see cref="IgnoreErrors"/>
    /// lets it load; empty for what each format has there: black, or nothing.</summary>
    public Color DataBackgroundColor { get; set; }

    /// <summary>Gets what was wrong with the file, one message for each object left out.</summary>
    public List<string> Errors { get; } = [];

    /// <summary>Gets the defects behind <see cref="Errors"/>, of formats whose readers number them.</summary>
    internal List<LoadDefect> Defects { get; } = [];

    /// <summary>Notes why something was left out.</summary>
    internal void Note(ImageLoadException failure)
    {
        Errors.Add(failure.Message);
        if (failure.Defect is { } defect)
        {
            Defects.Add(defect);
        }
    }
}
