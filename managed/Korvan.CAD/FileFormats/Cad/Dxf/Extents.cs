using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Rendering.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>A box that grows with the points put into it.</summary>
internal sealed class Extents
{
    private double _minX = double.PositiveInfinity;
    private double _minY = double.PositiveInfinity;
    private double _minZ = double.PositiveInfinity;
    private double _maxX = double.NegativeInfinity;
    private double _maxY = double.NegativeInfinity;
    private double _maxZ = double.NegativeInfinity;

    internal bool IsEmpty => _minX > _maxX;

    internal Cad3DPoint Min => IsEmpty ? new Cad3DPoint() : new Cad3DPoint(_minX, _minY, _minZ);

    internal Cad3DPoint Max => IsEmpty ? new Cad3DPoint() : new Cad3DPoint(_maxX, _maxY, _maxZ);

    internal void Add(Vec3 point) => Add(point.X, point.Y, point.Z);

    internal void Add(Cad3DPoint point) => Add(point.X, point.Y, point.Z);

    internal void Add(double x, double y, double z)
    {
        _minX = Math.Min(_minX, x);
        _minY = Math.Min(_minY, y);
        _minZ = Math.Min(_minZ, z);
        _maxX = Math.Max(_maxX, x);
        _maxY = Math.Max(_maxY, y);
        _maxZ = Math.Max(_maxZ, z);
    }

    /// <summary>Adds the corners of another box, each moved by a transformation.</summary>
    internal void Add(Extents box, Func<Vec3, Vec3> move)
    {
        if (box.IsEmpty)
        {
            return;
        }

        for (int corner = 0; corner < 8; corner++)
        {
            Add(move(new Vec3(
                (corner & 1) == 0 ? box._minX : box._maxX,
                (corner & 2) == 0 ? box._minY : box._maxY,
                (corner & 4) == 0 ? box._minZ : box._maxZ)));
        }
    }
}
