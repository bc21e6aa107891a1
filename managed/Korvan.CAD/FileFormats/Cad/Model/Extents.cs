using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

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

    /// <summary>Gets or sets what moves the points before they are put into the box.</summary>
    internal Affine3 Map { get; set; } = Affine3.Identity;

    internal void Add(Vec3 point) => Put(Map.Point(point));

    internal void Add(Cad3DPoint point) => Put(Map.Point(new Vec3(point.X, point.Y, point.Z)));

    /// <summary>Adds a point that is moved already.</summary>
    internal void AddMapped(Vec3 point) => Put(point);

    /// <summary>Whether the box holds everything that lies within a reach of a point.</summary>
    internal bool Contains(Vec3 point, Vec3 reach) =>
        point.X - reach.X >= _minX && point.X + reach.X <= _maxX
            && point.Y - reach.Y >= _minY && point.Y + reach.Y <= _maxY
            && point.Z - reach.Z >= _minZ && point.Z + reach.Z <= _maxZ;

    /// <summary>Adds a piece of an ellipse: its ends, and where it turns back along X, Y or Z.</summary>
    /// <param name="center">The centre.</param>
    /// <param name="u">The way from the centre to the point of angle 0.</param>
    /// <param name="v">The way from the centre to the point of a quarter.</param>
    /// <param name="start">The parameter of the start, in radians.</param>
    /// <param name="sweep">How far it runs; either way.</param>
    internal void AddArc(Vec3 center, Vec3 u, Vec3 v, double start, double sweep)
    {
        if (!double.IsFinite(start) || !double.IsFinite(sweep))
        {
            return;
        }

        // A number of turns changes nothing, and huge angles have no half turns between them.
        (start, sweep) = (Math.IEEERemainder(start, Math.Tau), Math.Clamp(sweep, -Math.Tau, Math.Tau));
        (center, u, v) = (Map.Point(center), Map.Vector(u), Map.Vector(v));
        PutArcPoint(center, u, v, start);
        PutArcPoint(center, u, v, start + sweep);
        double first = Math.Min(start, start + sweep);
        foreach (double turn in (double[])[Math.Atan2(v.X, u.X), Math.Atan2(v.Y, u.Y), Math.Atan2(v.Z, u.Z)])
        {
            double angle = turn + (Math.Ceiling((first - turn) / Math.PI) * Math.PI);
            for (; angle < first + Math.Abs(sweep); angle += Math.PI)
            {
                PutArcPoint(center, u, v, angle);
            }
        }
    }

    /// <summary>Adds what a pen draws.</summary>
    internal void AddPath(Action<PathPen> draw)
    {
        Bounds2 front = Draw(draw, Map);
        Bounds2 side = Draw(draw, new Affine3(Vec3.UnitZ, Vec3.UnitY, Vec3.UnitX, default) * Map);
        if (!front.IsEmpty)
        {
            Put(new Vec3(front.MinX, front.MinY, side.MinX));
            Put(new Vec3(front.MaxX, front.MaxY, side.MaxX));
        }
    }

    /// <summary>Adds the corners of another box, each moved by a transformation of its own.</summary>
    internal void Add(Extents box, Affine3 map)
    {
        if (box.IsEmpty)
        {
            return;
        }

        for (int corner = 0; corner < 8; corner++)
        {
            Put(map.Point(new Vec3(
                (corner & 1) == 0 ? box._minX : box._maxX,
                (corner & 2) == 0 ? box._minY : box._maxY,
                (corner & 4) == 0 ? box._minZ : box._maxZ)));
        }
    }

    private static Bounds2 Draw(Action<PathPen> draw, Affine3 map)
    {
        PathBuffer path = new();
        draw(new PathPen(path, map));
        return path.Bounds;
    }

    private void PutArcPoint(Vec3 center, Vec3 u, Vec3 v, double angle)
    {
        (double sin, double cos) = Math.SinCos(angle);
        Put(center + (u * cos) + (v * sin));
    }

    private void Put(Vec3 point)
    {
        (double x, double y, double z) = point;
        _minX = Math.Min(_minX, x);
        _minY = Math.Min(_minY, y);
        _minZ = Math.Min(_minZ, z);
        _maxX = Math.Max(_maxX, x);
        _maxY = Math.Max(_maxY, y);
        _maxZ = Math.Max(_maxZ, z);
    }
}
