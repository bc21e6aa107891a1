using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the faces of a drawing are written as a compressed mesh.</summary>
public class DracoOptions : ImageOptionsBase
{
    private int _compressionLevel = 7;
    private int _positionBits = 14;

    /// <summary>Creates options with their defaults.</summary>
    public DracoOptions()
        : base(FileFormat.Draco)
    {
    }

    /// <summary>Gets or sets how hard the faces are packed, 0 (fast) to 10 (small). 7 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is not 0 to 10.</exception>
    public int CompressionLevel
    {
        get => _compressionLevel;
        set
        {
            Verify.InRange(value, 0, 10);
            _compressionLevel = value;
        }
    }

    /// <summary>Gets or sets the bits of a coordinate, 1 to 30. 14 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is not 1 to 30.</exception>
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
