using System;

namespace Korvan.CAD.Rendering.Geometry;

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

    internal void Append(PathBuffer other)
    {
        Reserve(other.verbCount, other.coordCount);
        other.Verbs.CopyTo(verbs.AsSpan(verbCount));
        other.Coords.CopyTo(coords.AsSpan(coordCount));
        verbCount += other.verbCount;
        coordCount += other.coordCount;
        current = other.current;
        start = other.start;
        bounds.Add(other.bounds);
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
