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
    private PathVerb[] verbs = new PathVerb[64];
    private double[] coords = new double[256];
    private int verbCount;
    private int coordCount;
    private Vec2 start;
    private Vec2 current;
    private Bounds2 bounds = Bounds2.Empty;

    internal ReadOnlySpan<PathVerb> Verbs => verbs.AsSpan(0, verbCount);

    internal ReadOnlySpan<double> Coords => coords.AsSpan(0, coordCount);

    internal bool IsEmpty => verbCount == 0;

    internal Vec2 Current => current;

    internal ref readonly Bounds2 Bounds => ref bounds;

    internal void Clear()
    {
        verbCount = 0;
        coordCount = 0;
        bounds = Bounds2.Empty;
    }

    internal void MoveTo(Vec2 p)
    {
        // A move that follows a move replaces it, unless it was meant as a dot, which is closed by a line.
        if (verbCount > 0 && verbs[verbCount - 1] == PathVerb.Move)
        {
            coordCount -= 2;
            verbCount--;
        }

        Reserve(2);
        verbs[verbCount++] = PathVerb.Move;
        Put(p);
        start = p;
    }

    internal void LineTo(Vec2 p)
    {
        if (verbCount == 0)
        {
            MoveTo(p);
            return;
        }

        Reserve(2);
        if (verbs[verbCount - 1] == PathVerb.Move)
        {
            bounds.Add(current.X, current.Y);
        }

        verbs[verbCount++] = PathVerb.Line;
        Put(p);
        bounds.Add(p.X, p.Y);
    }

    internal void CurveTo(Vec2 p1, Vec2 p2, Vec2 p3)
    {
        Vec2 from = current;
        Reserve(6);
        if (verbCount > 0 && verbs[verbCount - 1] == PathVerb.Move)
        {
            bounds.Add(from.X, from.Y);
        }

        verbs[verbCount++] = PathVerb.Curve;
        Put(p1);
        Put(p2);
        Put(p3);
        bounds.AddCubic(from, p1, p2, p3);
    }

    internal void Close()
    {
        if (verbCount > 0 && verbs[verbCount - 1] is PathVerb.Line or PathVerb.Curve)
        {
            Reserve(0);
            verbs[verbCount++] = PathVerb.Close;
            current = start;
        }
    }

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

    private void Put(Vec2 p)
    {
        coords[coordCount++] = p.X;
        coords[coordCount++] = p.Y;
        current = p;
    }

    private void Reserve(int newCoords) => Reserve(1, newCoords);

    private void Reserve(int newVerbs, int newCoords)
    {
        if (verbCount + newVerbs > verbs.Length)
        {
            Array.Resize(ref verbs, Math.Max(verbs.Length * 2, verbCount + newVerbs));
        }

        if (coordCount + newCoords > coords.Length)
        {
            Array.Resize(ref coords, Math.Max(coords.Length * 2, coordCount + newCoords));
        }
    }
}
