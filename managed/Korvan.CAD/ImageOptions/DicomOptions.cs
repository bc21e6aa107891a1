using Korvan.CAD.FileFormats.Dicom;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for DICOM secondary capture files with one frame per page. Transparent pixels are blended with
/// white.</summary>
public class DicomOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public DicomOptions()
        : base(FileFormat.Dicom)
    {
    }

    /// <summary>Gets or sets the colour type of the pixels.</summary>
    public ColorType ColorType { get; set; } = ColorType.Rgb24Bit;

    /// <summary>Gets or sets the compression of the pixels; none by default.</summary>
    public Compression Compression { get; set; } = new();

    /// <summary>Gets or sets which pages are written; <see langword="null"/> for all pages.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    internal override bool HoldsResolution => true;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (Compression.Type != CompressionType.Jpeg && Compression.Quality != Compression.DefaultQuality)
        {
            throw NotHonoured($"{nameof(Compression)}.{nameof(Compression.Quality)}",
                "set its type to JPEG, as other compression is lossless");
        }
    }
}
