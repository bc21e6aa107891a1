using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes WebP.</summary>
public class WebPOptions : ImageOptionsBase
{
    private float _quality = 80;

    /// <summary>Creates options with their defaults.</summary>
    public WebPOptions()
        : base(FileFormat.Webp)
    {
    }

    /// <summary>Gets or sets whether every visible pixel is kept exactly. True by default.</summary>
    public bool Lossless { get; set; } = true;

    /// <summary>Gets or sets the quality of lossy compression, 0 to 100.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public float Quality
    {
        get => _quality;
        set
        {
            ArgumentOutOfRangeException.ThrowIfLessThan(value, 0f);
            ArgumentOutOfRangeException.ThrowIfGreaterThan(value, 100f);
            _quality = value;
        }
    }
}
