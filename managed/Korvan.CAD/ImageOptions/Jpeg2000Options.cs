using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Jpeg2000;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for JPEG 2000 images.</summary>
public class Jpeg2000Options : ImageOptionsBase
{
    private float _compressionRatio = 1;

    /// <summary>Creates options with default values.</summary>
    public Jpeg2000Options()
        : base(FileFormat.Jpeg2000)
    {
    }

    /// <summary>Gets or sets the container.</summary>
    public Jpeg2000Codec Codec { get; set; }

    /// <summary>Gets or sets whether the irreversible wavelet transform is used, which gives smaller files. Without it,
    /// compression is lossless unless <see cref="CompressionRatio"/> is above 1.</summary>
    public bool Irreversible { get; set; }

    /// <summary>Gets or sets the compression ratio relative to uncompressed pixels, 1 to 1000; 1 for no limit on the
    /// file size.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public float CompressionRatio
    {
        get => _compressionRatio;
        set
        {
            Verify.InRange(value, 1f, 1000f);
            _compressionRatio = value;
        }
    }
}
