using System;

namespace Korvan.CAD.Geometry;

/// <summary>
/// On which side of a line a point lies, without rounding errors (J. R. Shewchuk, Adaptive precision floating-point
/// arithmetic and fast robust geometric predicates, 1997). Products must neither overflow nor underflow.
/// </summary>
internal static class Orientation
{
    // Rounding cannot turn the sign of a determinant that is larger than this share of its terms.
    private const double FilterBound = 3.3306690738754716e-16;
    private const int MaxTerms = 12;

    /// <summary>1 where a, b, c turn counterclockwise, -1 where clockwise, 0 where they are collinear.</summary>
    internal static int Sign(Vec2 a, Vec2 b, Vec2 c)
    {
        double left = (a.X - c.X) * (b.Y - c.Y);
        double right = (a.Y - c.Y) * (b.X - c.X);
        double determinant = left - right;
        return Math.Abs(determinant) > FilterBound * (Math.Abs(left) + Math.Abs(right))
            ? Math.Sign(determinant)
            : ExactSign(a, b, c);
    }

    /// <summary>The order of a sweep from left to right: by x, then by y.</summary>
    internal static int Compare(Vec2 a, Vec2 b)
    {
        int byX = a.X.CompareTo(b.X);
        return byX != 0 ? byX : a.Y.CompareTo(b.Y);
    }

    private static int ExactSign(Vec2 a, Vec2 b, Vec2 c)
    {
        Span<double> sum = stackalloc double[MaxTerms];
        int count = 0;
        AddProduct(sum, ref count, a.X, b.Y);
        AddProduct(sum, ref count, -a.X, c.Y);
        AddProduct(sum, ref count, -c.X, b.Y);
        AddProduct(sum, ref count, -a.Y, b.X);
        AddProduct(sum, ref count, a.Y, c.X);
        AddProduct(sum, ref count, c.Y, b.X);
        return count == 0 ? 0 : Math.Sign(sum[count - 1]);
    }

    private static void AddProduct(Span<double> sum, ref int count, double x, double y)
    {
        double product = x * y;
        Add(sum, ref count, Math.FusedMultiplyAdd(x, y, -product));
        Add(sum, ref count, product);
    }

    // The sum stays an expansion: terms that do not overlap, by rising magnitude.
    private static void Add(Span<double> sum, ref int count, double value)
    {
        int kept = 0;
        for (int i = 0; i < count; i++)
        {
            double total = value + sum[i];
            double part = total - value;
            double error = (value - (total - part)) + (sum[i] - part);
            value = total;
            if (error != 0)
            {
                sum[kept++] = error;
            }
        }

        if (value != 0)
        {
            sum[kept++] = value;
        }

        count = kept;
    }
}
