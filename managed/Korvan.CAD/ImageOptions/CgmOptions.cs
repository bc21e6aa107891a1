using Korvan.CAD.FileFormats.Cgm;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a computer graphics metafile (ISO/IEC 8632), version 3.</summary>
public class CgmOptions : ImageOptionsBase, ITextAsLinesOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public CgmOptions()
        : base(FileFormat.Cgm)
    {
    }

    /// <summary>Gets or sets how the elements are written. Binary by default.</summary>
    public CgmFileFormat Encoding { get; set; } = CgmFileFormat.Binary;

    /// <summary>Gets or sets whether texts become lines around their letters instead of filled letters. Off by default.</summary>
    public bool TextAsLines { get; set; }
}
