using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a compressed mesh of the faces of a drawing.</summary>
public class DracoOptions : ImageOptionsBase
{
    private int _compressionLevel = 7;
    private int _positionBits = 14;

    /// <summary>Creates options with default values.</summary>
    public DracoOptions()
        : base(FileFormat.Draco)
    {
    }

    /// <summary>Gets or sets the compression level, 0 (fastest) to 10 (smallest). 7 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 0 to 10.</exception>
    public int CompressionLevel
    {
        get => _compressionLevel;
        set
        {
            Verify.InRange(value, 0, 10);
            _compressionLevel = value;
        }
    }

    /// <summary>Gets or sets the quantization of coordinates in bits, 1 to 30. 14 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 1 to 30.</exception>
    public int PositionBits
    {
        get => _positionBits;
        set
        {
            Verify.InRange(value, 1, 30);
            _positionBits = value;
        }
    }
}
