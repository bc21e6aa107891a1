using Korvan.CAD.FileFormats.Cgm;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for computer graphics metafiles (ISO/IEC 8632), version 3.</summary>
public class CgmOptions : ImageOptionsBase, ITextAsLinesOptions
{
    /// <summary>Creates options with default values.</summary>
    public CgmOptions()
        : base(FileFormat.Cgm)
    {
    }

    /// <summary>Gets or sets the encoding of the elements. Binary by default.</summary>
    public CgmFileFormat Encoding { get; set; } = CgmFileFormat.Binary;

    /// <summary>Gets or sets whether text is written as the outlines of its glyphs instead of filled glyphs. Off by
    /// default.</summary>
    public bool TextAsLines { get; set; }
}
