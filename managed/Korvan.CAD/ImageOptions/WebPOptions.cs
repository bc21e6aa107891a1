using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes WebP.</summary>
public class WebPOptions : ImageOptionsBase
{
    private const float UsualQuality = 80;

    private float _quality = UsualQuality;

    /// <summary>Creates options with their defaults.</summary>
    public WebPOptions()
        : base(FileFormat.Webp)
    {
    }

    /// <summary>Gets or sets whether every visible pixel is kept exactly. True by default.</summary>
    public bool Lossless { get; set; } = true;

    /// <summary>Gets or sets the quality of lossy compression, 0 to 100; for <see cref="Lossless"/> turned off. 80 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
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
        if (Lossless && Quality != UsualQuality)
        {
            throw NotHonoured(nameof(Quality), "set lossless to False, as every pixel is kept exactly otherwise");
        }
    }
}
