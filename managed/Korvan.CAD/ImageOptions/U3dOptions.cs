using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the faces of a drawing are written for documents with 3D content.</summary>
public class U3dOptions : ImageOptionsBase
{
    private int _positionQuality = 1000;

    /// <summary>Creates options with their defaults.</summary>
    public U3dOptions()
        : base(FileFormat.U3D)
    {
    }

    /// <summary>Gets or sets how exactly coordinates are kept, 1 (coarse) to 1000. 1000 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is not 1 to 1000.</exception>
    public int PositionQuality
    {
        get => _positionQuality;
        set
        {
            Verify.InRange(value, 1, 1000);
            _positionQuality = value;
        }
    }
}
