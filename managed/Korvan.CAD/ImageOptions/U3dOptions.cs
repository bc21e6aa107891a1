using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing as Universal 3D (ECMA-363), for documents with 3D content.</summary>
public class U3dOptions : ImageOptionsBase
{
    private int _positionQuality = 1000;

    /// <summary>Creates options with default values.</summary>
    public U3dOptions()
        : base(FileFormat.U3D)
    {
    }

    /// <summary>Gets or sets the quality of coordinates, 1 (coarse) to 1000 (exact). 1000 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 1 to 1000.</exception>
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
