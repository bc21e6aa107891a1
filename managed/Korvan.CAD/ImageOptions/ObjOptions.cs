using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing as a Wavefront OBJ mesh with a group for each layer.</summary>
public class ObjOptions : ImageOptionsBase
{
    private int _precision = 6;

    /// <summary>Creates options with default values.</summary>
    public ObjOptions()
        : base(FileFormat.Obj)
    {
    }

    /// <summary>Gets or sets the number of decimal places of coordinates, 0 to 15. 6 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is not 0 to 15.</exception>
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
