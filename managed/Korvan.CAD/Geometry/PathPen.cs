using System;

namespace Korvan.CAD.Geometry;

/// <summary>Draws local curves through an affine map into a path buffer.</summary>
internal readonly struct PathPen
{
    private readonly PathBuffer _target;
    private readonly Affine3 _map;
    private readonly double _z;

    /// <summary>A pen whose plane points lie at the local z <paramref name="elevation"/>.</summary>
    internal PathPen(PathBuffer target, in Affine3 map, double elevation = 0)
    {
        _target = target;
        _map = map;
        _z = elevation;
    }

    internal PathBuffer Target => _target;

    internal void MoveTo(Vec2 p) => _target.MoveTo(_map.Project(p.X, p.Y, _z));

    internal void LineTo(Vec2 p) => _target.LineTo(_map.Project(p.X, p.Y, _z));

    internal void CurveTo(Vec2 p1, Vec2 p2, Vec2 p3) =>
        _target.CurveTo(_map.Project(p1.X, p1.Y, _z), _map.Project(p2.X, p2.Y, _z), _map.Project(p3.X, p3.Y, _z));

    internal void MoveTo(Vec3 p) => _target.MoveTo(_map.Project(p));

    internal void LineTo(Vec3 p) => _target.LineTo(_map.Project(p));

    internal void CurveTo(Vec3 p1, Vec3 p2, Vec3 p3) =>
        _target.CurveTo(_map.Project(p1), _map.Project(p2), _map.Project(p3));

    internal void Close() => _target.Close();

    internal void Circle(Vec2 center, double radius)
    {
        MoveTo(center + new Vec2(radius, 0));
        ArcTo(center, radius, 0, 2 * Math.PI);
        Close();
    }

    /// <summary>Continues along a circle, from <paramref name="start"/> by <paramref name="sweep"/> radians
    /// (signed).</summary>
    internal void ArcTo(Vec2 center, double radius, double start, double sweep) =>
        EllipseTo(center, new Vec2(radius, 0), new Vec2(0, radius), start, sweep);

    /// <summary>
    /// Continues along center + u·cos t + v·sin t. Pieces of at most 45° keep the radial error of the cubic below
    /// 4.3e-6 of the radius: the handle is 4/3·tan(θ/4) (A. Riškus, Approximation of a cubic Bézier curve by
    /// circular arcs and vice versa, 2006).
    /// </summary>
    internal void EllipseTo(Vec2 center, Vec2 u, Vec2 v, double start, double sweep)
    {
        if (!double.IsFinite(start) || !double.IsFinite(sweep))
        {
            return;
        }

        sweep = Math.Clamp(sweep, -2 * Math.PI, 2 * Math.PI);
        int pieces = Math.Max(1, (int)Math.Ceiling((Math.Abs(sweep) / (Math.PI / 4)) - 1e-9));
        double step = sweep / pieces;
        double handle = 4.0 / 3.0 * Math.Tan(step / 4);
        (double sin0, double cos0) = Math.SinCos(start);
        for (int i = 1; i <= pieces; i++)
        {
            (double sin1, double cos1) = Math.SinCos(start + (step * i));
            Vec2 p1 = center + (u * (cos0 - (handle * sin0))) + (v * (sin0 + (handle * cos0)));
            Vec2 p2 = center + (u * (cos1 + (handle * sin1))) + (v * (sin1 - (handle * cos1)));
            CurveTo(p1, p2, center + (u * cos1) + (v * sin1));
            (sin0, cos0) = (sin1, cos1);
        }
    }

    /// <summary>The same ellipse in space, for curves that are given in world coordinates.</summary>
    internal void EllipseTo(Vec3 center, Vec3 u, Vec3 v, double start, double sweep)
    {
        Affine3 plane = new(u, v, Vec3.UnitZ, center);
        new PathPen(_target, _map * plane).EllipseTo(default, new Vec2(1, 0), new Vec2(0, 1), start, sweep);
    }

    /// <summary>Continues along the arc of a bulge, or along a line where the bulge is none.</summary>
    internal void BulgeTo(Vec2 from, Vec2 to, double bulge)
    {
        if (BulgeArc.TryCreate(from, to, bulge, out BulgeArc arc))
        {
            ArcTo(arc.Center, arc.Radius, arc.Start, arc.Sweep);
        }
        else
        {
            LineTo(to);
        }
    }
}
