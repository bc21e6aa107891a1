using Korvan.CAD.FileFormats.Dicom;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes DICOM secondary capture files, one frame for each page. Opacity is laid over white.</summary>
public class DicomOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public DicomOptions()
        : base(FileFormat.Dicom)
    {
    }

    /// <summary>Gets or sets the samples of a pixel.</summary>
    public ColorType ColorType { get; set; } = ColorType.Rgb24Bit;

    /// <summary>Gets or sets how pixels are stored; plain by default.</summary>
    public Compression Compression { get; set; } = new();

    /// <summary>Gets or sets which pages are written; nothing for all of them.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    internal override bool HoldsResolution => true;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (Compression.Type != CompressionType.Jpeg && Compression.Quality != Compression.DefaultQuality)
        {
            throw NotHonoured($"{nameof(Compression)}.{nameof(Compression.Quality)}",
                "set its type to JPEG, as every pixel is kept exactly otherwise");
        }
    }
}
