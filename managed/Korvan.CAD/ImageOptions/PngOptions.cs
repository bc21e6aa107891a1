using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes portable network graphics.</summary>
public class PngOptions : ImageOptionsBase
{
    private int _compressionLevel = 6;

    /// <summary>Creates options with their defaults.</summary>
    public PngOptions()
        : base(FileFormat.Png)
    {
    }

    /// <summary>Gets or sets how hard the data is compressed, 0 (not at all) to 9. 6 by default.</summary>
    public int CompressionLevel
    {
        get => _compressionLevel;
        set
        {
            ArgumentOutOfRangeException.ThrowIfNegative(value);
            ArgumentOutOfRangeException.ThrowIfGreaterThan(value, 9);
            _compressionLevel = value;
        }
    }
}
