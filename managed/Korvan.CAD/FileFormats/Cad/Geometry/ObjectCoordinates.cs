using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Geometry;

/// <summary>The object coordinate system of an extrusion direction.</summary>
/// <remarks>The arbitrary axis algorithm of the drawing interchange format: where the normal is nearer than 1/64 to
/// the world's Z axis, both ways, the X axis is Y × N, elsewhere Z × N.</remarks>
internal readonly struct ObjectCoordinates
{
    private const double NearZ = 1.0 / 64;

    private readonly (double X, double Y, double Z) _x;
    private readonly (double X, double Y, double Z) _y;
    private readonly (double X, double Y, double Z) _z;

    internal ObjectCoordinates(Cad3DPoint extrusion)
    {
        double length = Math.Sqrt(
            (extrusion.X * extrusion.X) + (extrusion.Y * extrusion.Y) + (extrusion.Z * extrusion.Z));
        _z = length > 0 && double.IsFinite(length)
            ? (extrusion.X / length, extrusion.Y / length, extrusion.Z / length)
            : (0, 0, 1);
        bool near = Math.Abs(_z.X) < NearZ && Math.Abs(_z.Y) < NearZ;
        _x = Unit(near ? Cross((0, 1, 0), _z) : Cross((0, 0, 1), _z));
        _y = Unit(Cross(_z, _x));
        IsWorld = _z.X == 0 && _z.Y == 0 && _z.Z > 0;
    }

    /// <summary>Gets whether the system is that of the world.</summary>
    internal bool IsWorld { get; }

    internal (double X, double Y, double Z) XAxis => _x;

    internal (double X, double Y, double Z) YAxis => _y;

    internal (double X, double Y, double Z) ZAxis => _z;

    internal (double X, double Y, double Z) ToWorld(double x, double y, double z)
    {
        return IsWorld
            ? (x, y, z)
            : ((x * _x.X) + (y * _y.X) + (z * _z.X),
               (x * _x.Y) + (y * _y.Y) + (z * _z.Y),
               (x * _x.Z) + (y * _y.Z) + (z * _z.Z));
    }

    internal (double X, double Y, double Z) FromWorld(double x, double y, double z)
    {
        return IsWorld
            ? (x, y, z)
            : ((x * _x.X) + (y * _x.Y) + (z * _x.Z),
               (x * _y.X) + (y * _y.Y) + (z * _y.Z),
               (x * _z.X) + (y * _z.Y) + (z * _z.Z));
    }

    private static (double X, double Y, double Z) Cross(
        (double X, double Y, double Z) a, (double X, double Y, double Z) b)
    {
        return ((a.Y * b.Z) - (a.Z * b.Y), (a.Z * b.X) - (a.X * b.Z), (a.X * b.Y) - (a.Y * b.X));
    }

    private static (double X, double Y, double Z) Unit((double X, double Y, double Z) v)
    {
        double length = Math.Sqrt((v.X * v.X) + (v.Y * v.Y) + (v.Z * v.Z));
        return (v.X / length, v.Y / length, v.Z / length);
    }
}
