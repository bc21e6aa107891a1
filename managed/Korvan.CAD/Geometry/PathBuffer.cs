using System;

namespace Korvan.CAD.Geometry;

internal enum PathVerb : byte
{
    Move,
    Line,
    Curve,
    Close,
}

/// <summary>
/// A path as two flat arrays: verbs, and the coordinates that they consume (2, 2, 6 and 0). It is scratch memory
/// that is cleared and filled again, so building a drawing allocates per growth, not per entity.
/// </summary>
internal sealed class PathBuffer
{
    private PathVerb[] _verbs = new PathVerb[64];
    private double[] _coords = new double[256];
    private int _verbCount;
    private int _coordCount;
    private Vec2 _start;
    private Vec2 _current;
    private Bounds2 _bounds = Bounds2.Empty;

    internal ReadOnlySpan<PathVerb> Verbs => _verbs.AsSpan(0, _verbCount);

    internal ReadOnlySpan<double> Coords => _coords.AsSpan(0, _coordCount);

    internal bool IsEmpty => _verbCount == 0;

    internal Vec2 Current => _current;

    internal ref readonly Bounds2 Bounds => ref _bounds;

    internal void Clear()
    {
        _verbCount = 0;
        _coordCount = 0;
        _bounds = Bounds2.Empty;
    }

    internal void MoveTo(Vec2 p)
    {
        // A move that follows a move replaces it, unless it was meant as a dot, which is closed by a line.
        if (_verbCount > 0 && _verbs[_verbCount - 1] == PathVerb.Move)
        {
            _coordCount -= 2;
            _verbCount--;
        }

        Reserve(2);
        _verbs[_verbCount++] = PathVerb.Move;
        Put(p);
        _start = p;
    }

    internal void LineTo(Vec2 p)
    {
        if (_verbCount == 0)
        {
            MoveTo(p);
            return;
        }

        Reserve(2);
        if (_verbs[_verbCount - 1] == PathVerb.Move)
        {
            _bounds.Add(_current.X, _current.Y);
        }

        _verbs[_verbCount++] = PathVerb.Line;
        Put(p);
        _bounds.Add(p.X, p.Y);
    }

    internal void CurveTo(Vec2 p1, Vec2 p2, Vec2 p3)
    {
        Vec2 from = _current;
        Reserve(6);
        if (_verbCount > 0 && _verbs[_verbCount - 1] == PathVerb.Move)
        {
            _bounds.Add(from.X, from.Y);
        }

        _verbs[_verbCount++] = PathVerb.Curve;
        Put(p1);
        Put(p2);
        Put(p3);
        _bounds.AddCubic(from, p1, p2, p3);
    }

    internal void Close()
    {
        if (_verbCount > 0 && _verbs[_verbCount - 1] is PathVerb.Line or PathVerb.Curve)
        {
            Reserve(0);
            _verbs[_verbCount++] = PathVerb.Close;
            _current = _start;
        }
    }

    /// <summary>Adds another path through a map.</summary>
    internal void AppendMapped(PathBuffer other, in Affine2 map) => AppendMapped(
        other, new Affine3(
            new Vec3(map.Xx, map.Yx, 0), new Vec3(map.Xy, map.Yy, 0), Vec3.UnitZ, new Vec3(map.X0, map.Y0, 0)), 0);

    /// <summary>Adds another path through a map; its plane lies at the local z <paramref name="elevation"/>.</summary>
    internal void AppendMapped(PathBuffer other, in Affine3 map, double elevation)
    {
        ReadOnlySpan<double> c = other.Coords;
        int at = 0;
        foreach (PathVerb verb in other.Verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    MoveTo(map.Project(c[at], c[at + 1], elevation));
                    at += 2;
                    break;
                case PathVerb.Line:
                    LineTo(map.Project(c[at], c[at + 1], elevation));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    CurveTo(
                        map.Project(c[at], c[at + 1], elevation),
                        map.Project(c[at + 2], c[at + 3], elevation),
                        map.Project(c[at + 4], c[at + 5], elevation));
                    at += 6;
                    break;
                default:
                    Close();
                    break;
            }
        }
    }

    /// <summary>Adds a path, given by its verbs and coordinates, through a map.</summary>
    internal void AppendMapped(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map)
    {
        int at = 0;
        foreach (PathVerb verb in verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    MoveTo(map.Point(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    LineTo(map.Point(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    CurveTo(
                        map.Point(c[at], c[at + 1]), map.Point(c[at + 2], c[at + 3]), map.Point(c[at + 4], c[at + 5]));
                    at += 6;
                    break;
                default:
                    Close();
                    break;
            }
        }
    }

    private void Put(Vec2 p)
    {
        _coords[_coordCount++] = p.X;
        _coords[_coordCount++] = p.Y;
        _current = p;
    }

    private void Reserve(int newCoords) => Reserve(1, newCoords);

    private void Reserve(int newVerbs, int newCoords)
    {
        if (_verbCount + newVerbs > _verbs.Length)
        {
            Array.Resize(ref _verbs, Math.Max(_verbs.Length * 2, _verbCount + newVerbs));
        }

        if (_coordCount + newCoords > _coords.Length)
        {
            int length = Math.Max(_coords.Length * 2, _coordCount + newCoords);
            Workload.Reserve((long)length * sizeof(double));
            Array.Resize(ref _coords, length);
        }
    }
}
