using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for WebP images.</summary>
public class WebPOptions : ImageOptionsBase
{
    private const float DefaultQuality = 80;

    private float _quality = DefaultQuality;

    /// <summary>Creates options with default values.</summary>
    public WebPOptions()
        : base(FileFormat.Webp)
    {
    }

    /// <summary>Gets or sets whether compression is lossless for visible pixels. On by default.</summary>
    public bool Lossless { get; set; } = true;

    /// <summary>Gets or sets the quality of lossy compression, 0 to 100; used if <see cref="Lossless"/> is off. 80 by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public float Quality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 0f, 100f);
            _quality = value;
        }
    }

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        if (Lossless && Quality != DefaultQuality)
        {
            throw NotHonoured(nameof(Quality), "set lossless to False, as lossless compression has no quality");
        }
    }
}
