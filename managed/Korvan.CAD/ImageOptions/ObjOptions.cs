using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes the faces of a drawing as Wavefront object, a group for each layer.</summary>
public class ObjOptions : ImageOptionsBase
{
    private int _precision = 6;

    /// <summary>Creates options with their defaults.</summary>
    public ObjOptions()
        : base(FileFormat.Obj)
    {
    }

    /// <summary>Gets or sets how many digits coordinates have after the point, 0 to 15. 6 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is not 0 to 15.</exception>
    public int Precision
    {
        get => _precision;
        set
        {
            Verify.InRange(value, 0, 15);
            _precision = value;
        }
    }
}
