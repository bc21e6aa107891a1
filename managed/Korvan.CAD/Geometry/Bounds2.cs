using System;

namespace Korvan.CAD.Geometry;

/// <summary>A rectangle that grows; empty until the first point.</summary>
internal struct Bounds2
{
    internal double MinX;
    internal double MinY;
    internal double MaxX;
    internal double MaxY;

    internal static Bounds2 Empty => new()
    {
        MinX = double.PositiveInfinity,
        MinY = double.PositiveInfinity,
        MaxX = double.NegativeInfinity,
        MaxY = double.NegativeInfinity,
    };

    internal readonly bool IsEmpty => !(MinX <= MaxX && MinY <= MaxY);

    internal readonly bool IsFinite =>
        double.IsFinite(MinX) && double.IsFinite(MinY) && double.IsFinite(MaxX) && double.IsFinite(MaxY);

    internal readonly double Width => MaxX - MinX;

    internal readonly double Height => MaxY - MinY;

    internal readonly Vec2 Center => new((MinX + MaxX) / 2, (MinY + MaxY) / 2);

    internal static Bounds2 Of(double x0, double y0, double x1, double y1) => new()
    {
        MinX = Math.Min(x0, x1),
        MinY = Math.Min(y0, y1),
        MaxX = Math.Max(x0, x1),
        MaxY = Math.Max(y0, y1),
    };

    internal readonly bool Contains(double x, double y) => x >= MinX && x <= MaxX && y >= MinY && y <= MaxY;

    internal readonly bool Contains(in Bounds2 other) => other.IsEmpty
        || (other.MinX >= MinX && other.MaxX <= MaxX && other.MinY >= MinY && other.MaxY <= MaxY);

    internal readonly bool Intersects(in Bounds2 other) =>
        MinX <= other.MaxX && other.MinX <= MaxX && MinY <= other.MaxY && other.MinY <= MaxY;

    internal void Add(double x, double y)
    {
        MinX = Math.Min(MinX, x);
        MinY = Math.Min(MinY, y);
        MaxX = Math.Max(MaxX, x);
        MaxY = Math.Max(MaxY, y);
    }

    internal void Add(in Bounds2 other)
    {
        if (!other.IsEmpty)
        {
            Add(other.MinX, other.MinY);
            Add(other.MaxX, other.MaxY);
        }
    }

    internal readonly Bounds2 Clip(in Bounds2 other) => new()
    {
        MinX = Math.Max(MinX, other.MinX),
        MinY = Math.Max(MinY, other.MinY),
        MaxX = Math.Min(MaxX, other.MaxX),
        MaxY = Math.Min(MaxY, other.MaxY),
    };

    /// <summary>Determines the part of a line segment in the rectangle, as fractions of its length; false for none. By
    /// the parametric clipping of Liang and Barsky, 1984.</summary>
    internal readonly bool TryClip(Vec2 from, Vec2 to, out double first, out double last)
    {
        (first, last) = (0, 1);
        return TryClip(to.X - from.X, from.X, MinX, MaxX, ref first, ref last)
            && TryClip(to.Y - from.Y, from.Y, MinY, MaxY, ref first, ref last)
            && first < last;
    }

    private static bool TryClip(
        double along, double start, double min, double max, ref double first, ref double last)
    {
        if (along == 0)
        {
            return start >= min && start <= max;
        }

        double a = (min - start) / along;
        double b = (max - start) / along;
        first = Math.Max(first, Math.Min(a, b));
        last = Math.Min(last, Math.Max(a, b));
        return true;
    }

    /// <summary>Adds a cubic by its end points and, where its polygon leaves the box, by the curve's own
    /// extremes.</summary>
    internal void AddCubic(Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3)
    {
        Add(p3.X, p3.Y);
        if (Contains(p1.X, p1.Y) && Contains(p2.X, p2.Y))
        {
            return;
        }

        AddExtremes(p0.X, p1.X, p2.X, p3.X, p0, p1, p2, p3);
        AddExtremes(p0.Y, p1.Y, p2.Y, p3.Y, p0, p1, p2, p3);
    }

    // The roots of the derivative of one coordinate: a·t² + b·t + c with the factor 3 divided out.
    private void AddExtremes(double v0, double v1, double v2, double v3, Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3)
    {
        double a = v3 - (3 * v2) + (3 * v1) - v0;
        double b = 2 * (v2 - (2 * v1) + v0);
        double c = v1 - v0;
        if (Math.Abs(a) <= 1e-12 * (Math.Abs(b) + Math.Abs(c)))
        {
            AddAt(-c / b, p0, p1, p2, p3);
            return;
        }

        double discriminant = (b * b) - (4 * a * c);
        if (discriminant >= 0)
        {
            double root = Math.Sqrt(discriminant);
            AddAt((-b + root) / (2 * a), p0, p1, p2, p3);
            AddAt((-b - root) / (2 * a), p0, p1, p2, p3);
        }
    }

    private void AddAt(double t, Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3)
    {
        if (t > 0 && t < 1)
        {
            Vec2 p = Cubic.At(p0, p1, p2, p3, t);
            Add(p.X, p.Y);
        }
    }
}
