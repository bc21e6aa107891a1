using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Jpeg2000;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes JPEG 2000.</summary>
public class Jpeg2000Options : ImageOptionsBase
{
    private float _compressionRatio = 1;

    /// <summary>Creates options with their defaults.</summary>
    public Jpeg2000Options()
        : base(FileFormat.Jpeg2000)
    {
    }

    /// <summary>Gets or sets the container.</summary>
    public Jpeg2000Codec Codec { get; set; }

    /// <summary>Gets or sets whether the lossy wavelet is used. It is smaller; without it every pixel is kept exactly, unless <see cref="CompressionRatio"/> is above 1.</summary>
    public bool Irreversible { get; set; }

    /// <summary>Gets or sets how many times smaller than plain pixels the file becomes, 1 to 1000; 1 for all that is there.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
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
