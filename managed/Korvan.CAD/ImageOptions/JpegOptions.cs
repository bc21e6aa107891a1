using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Jpeg;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes JPEG files. Opacity is laid over white.</summary>
public class JpegOptions : ImageOptionsBase
{
    private int _quality = 90;

    /// <summary>Creates options with their defaults.</summary>
    public JpegOptions()
        : base(FileFormat.Jpeg)
    {
    }

    /// <summary>Gets or sets the quality, 1 (smallest) to 100. From 90 on colours keep their full resolution. 90 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int Quality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }

    /// <summary>Gets or sets how much room the picture may take: the best quality that keeps to it goes before
    /// <see cref="Quality"/>. Nothing by default.</summary>
    public RdOptimizerSettings? RdOptSettings { get; set; }

    /// <summary>Gets or sets the order in which the picture is stored.</summary>
    public JpegCompressionMode CompressionType { get; set; }

    /// <summary>Gets or sets which colours are stored.</summary>
    public JpegCompressionColorMode ColorType { get; set; } = JpegCompressionColorMode.YCbCr;

    /// <summary>Gets or sets a text that is stored beside the picture; empty for none.</summary>
    public string Comment { get; set; } = "";

    /// <summary>Gets or sets what the camera says of the picture; nothing keeps what a picture was loaded with.</summary>
    public JpegExifData? ExifData { get; set; }

    /// <summary>Gets or sets the density of pixels; nothing takes the resolution of the page.</summary>
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
            throw NotHonoured(nameof(Jfif), "leave it out, as files of inks have a head of another kind");
        }
    }
}
