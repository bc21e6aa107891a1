using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Jpeg;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for JPEG images. Transparent pixels are blended with white.</summary>
public class JpegOptions : ImageOptionsBase
{
    private int _quality = 90;

    /// <summary>Creates options with default values.</summary>
    public JpegOptions()
        : base(FileFormat.Jpeg)
    {
    }

    /// <summary>Gets or sets the quality, 1 (smallest) to 100. From 90 on, chroma is not subsampled. 90 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public int Quality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }

    /// <summary>Gets or sets a limit on the size of the file, which takes precedence over <see cref="Quality"/>: the
    /// best quality within the limit is used. <see langword="null"/>, the default, for no limit.</summary>
    public RdOptimizerSettings? RdOptSettings { get; set; }

    /// <summary>Gets or sets the coding process, such as baseline or progressive.</summary>
    public JpegCompressionMode CompressionType { get; set; }

    /// <summary>Gets or sets the colour space.</summary>
    public JpegCompressionColorMode ColorType { get; set; } = JpegCompressionColorMode.YCbCr;

    /// <summary>Gets or sets the comment that is stored in the file; empty for none.</summary>
    public string Comment { get; set; } = "";

    /// <summary>Gets or sets the Exif metadata; <see langword="null"/> to keep that of the loaded image.</summary>
    public JpegExifData? ExifData { get; set; }

    /// <summary>Gets or sets the pixel density in the JFIF header; <see langword="null"/> for the resolution of the
    /// page.</summary>
    public JFIFData? Jfif { get; set; }

    internal override bool HoldsXmp => true;

    internal override bool HoldsResolution => true;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (ColorType is JpegCompressionColorMode.Rgb or JpegCompressionColorMode.Cmyk)
        {
            throw NotHonoured(nameof(ColorType),
                $"{Verify.NameOf(ColorType)} is read, but not written; choose Y_CB_CR, YCCK or GRAYSCALE");
        }

        if (Jfif is not null && ColorType == JpegCompressionColorMode.Ycck)
        {
            throw NotHonoured(nameof(Jfif), "leave it out, as YCCK files have no JFIF header");
        }
    }
}
