using System;
using System.Collections.Generic;
using System.Linq;
using Xunit;

namespace Korvan.CAD.Tests.Surface;

/// <summary>Matrices, vectors and rectangles compared to plain arithmetic.</summary>
public class PlaneTests
{
    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void Matrices_do_what_each_of_their_maps_does_in_order(int seed)
    {
        Random random = new(seed);
        for (int round = 0; round < 200; round++)
        {
            using Matrix matrix = new();
            List<PlaneMap> maps = [];
            for (int i = random.Next(1, 7); i > 0; i--)
            {
                MatrixOrder order = random.Next(2) == 0 ? MatrixOrder.Prepend : MatrixOrder.Append;
                (float a, float b) = ((float)Number(), (float)Number());
                (Action Change, PlaneMap Map) step = random.Next(6) switch
                {
                    0 => (() => matrix.Scale(a, b, order), p => (p.X * a, p.Y * b)),
                    1 => (() => matrix.Translate(a, b, order), p => (p.X + a, p.Y + b)),
                    2 => (() => matrix.Rotate(a * 40, order), p => Rotated(p, a * 40, 0, 0)),
                    3 => (() => matrix.RotateAt(a * 40, new PointF(b, a), order), p => Rotated(p, a * 40, b, a)),
                    4 => (() => matrix.Shear(a, 0, order), p => (p.X + (a * p.Y), p.Y)),
                    _ => (
                        () => matrix.Multiply(new Matrix(a, b, -b, a, 1, 2), order),
                        p => ((a * p.X) - (b * p.Y) + 1, (b * p.X) + (a * p.Y) + 2)),
                };
                step.Change();
                maps.Insert(order == MatrixOrder.Append ? maps.Count : 0, step.Map);
            }

            (double X, double Y) expected = maps.Aggregate((X: 3.0, Y: -2.0), (p, map) => map(p));
            PointF place = matrix.TransformPoints([new PointF(3, -2)])[0];
            double tolerance = 1e-5 * (1 + Math.Abs(expected.X) + Math.Abs(expected.Y));
            Assert.InRange(place.X - expected.X, -tolerance, tolerance);
            Assert.InRange(place.Y - expected.Y, -tolerance, tolerance);

            float[] m = matrix.Elements;
            PointF arrow = matrix.TransformVectors([new PointF(3, -2)])[0];
            Assert.Equal(place.X - matrix.OffsetX, arrow.X, tolerance);
            Assert.Equal(
                ((double)m[0] * m[3]) - ((double)m[1] * m[2]), matrix.Determinant,
                1e-4 * (1 + Math.Abs(matrix.Determinant)) * 10);
            using Matrix inverse = matrix.Clone();
            inverse.Invert();
            inverse.Multiply(matrix, MatrixOrder.Append);
            Assert.All(inverse.Elements.Zip([1f, 0, 0, 1, 0, 0]), pair => Assert.Equal(pair.Second, pair.First, 1e-4));
        }

        double Number() => Math.Round((random.NextDouble() * 4) + 0.25, 2) * (random.Next(2) == 0 ? 1 : -1);
    }

    [Fact]
    public void Quarter_turns_are_exact_and_whole_points_are_rounded()
    {
        using Matrix matrix = new();
        matrix.Rotate(90);
        Assert.Equal([0f, 1, -1, 0, 0, 0], matrix.Elements);
        matrix.Rotate(270);
        Assert.True(matrix.IsIdentity);
        matrix.Scale(0.5F, 0.5F);
        Assert.Equal(new Point(-4, 3), matrix.TransformPoints([new Point(-8, 6)])[0]);
        matrix.Scale(0, 1);
        Assert.False(matrix.IsInvertible);
        Assert.Throws<InvalidOperationException>(matrix.Invert);
        matrix.Reset();
        Assert.Equal(new Matrix(), matrix);
    }

    [Theory]
    [InlineData(3F, 4F, 12F, 13F)]
    [InlineData(3e30F, 4e30F, 12e30F, 13e30F)] // whose squares are beyond single precision
    [InlineData(3e-30F, 4e-30F, 12e-30F, 13e-30F)]
    public void Vectors_have_lengths_and_directions_of_any_size(float x, float y, float z, float length)
    {
        Vector3F vector = new(x, y, z);
        Assert.Equal(1, vector.Length / length, 1e-6);
        Assert.Equal(3 / 13.0, vector.Normalize().X, 1e-6);
        Assert.Equal(1, vector.Normalize().Length, 1e-6);
        Assert.Equal(12 / 13.0, new Vector4F(x, y, z, 0).Normalize().Z, 1e-6);
        Assert.Equal(1, new Vector4F(0, x, y, z).Length / length, 1e-6);
    }

    [Fact]
    public void Vectors_multiply_as_numbers_do()
    {
        Vector3F a = new(1, 2, 3), b = new(-4, 5, 6);
        Vector3F across = Vector3F.Cross(a, b);
        Assert.Equal(new Vector3F(-3, -18, 13), across);
        Assert.Equal((0F, 0F, 24F), (Vector3F.Dot(across, a), Vector3F.Dot(across, b), Vector3F.Dot(a, b)));
        Assert.Equal(new Vector3F(3, 18, -13), Vector3F.Cross(b, a));
        Assert.Equal(70F, Vector4F.Dot(new Vector4F(1, 2, 3, 4), new Vector4F(5, 6, 7, 8)));
        Assert.Equal(new Vector3F(0, 0, 0).GetHashCode(), new Vector3F(-0F, 0, -0F).GetHashCode());
        Assert.Throws<InvalidOperationException>(() => Vector3F.Empty.Normalize());
    }

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    public void Rectangles_hold_the_cells_that_a_grid_shows(int seed)
    {
        Random random = new(seed);
        for (int round = 0; round < 300; round++)
        {
            (Rectangle a, Rectangle b) = (Next(), Next());
            HashSet<(int, int)> ofA = Cells(a), ofB = Cells(b);
            HashSet<(int, int)> both = [.. ofA.Intersect(ofB)];
            Assert.Equal(both, Cells(Rectangle.Intersect(a, b)));
            Assert.Equal(both.Count > 0, a.IntersectsWith(b));
            Assert.Equal(ofB.IsSubsetOf(ofA), a.Contains(b));
            Rectangle union = Rectangle.Union(a, b);
            Assert.True(Cells(union).IsSupersetOf(ofA) && Cells(union).IsSupersetOf(ofB));
            Assert.Equal((Math.Max(a.Right, b.Right), Math.Max(a.Bottom, b.Bottom)), (union.Right, union.Bottom));
            Assert.Equal(a, Rectangle.Inflate(Rectangle.Inflate(a, 2, 3), -2, -3));
            Rectangle flipped = new(a.Right, a.Bottom, -a.Width, -a.Height);
            flipped.Normalize();
            Assert.Equal(a, flipped);
        }

        Rectangle Next() => new(random.Next(-5, 6), random.Next(-5, 6), random.Next(1, 8), random.Next(1, 8));
    }

    private static HashSet<(int X, int Y)> Cells(Rectangle rectangle)
    {
        IEnumerable<int> all = Enumerable.Range(-12, 30);
        return
        [
            .. all.SelectMany(x => all.Select(y => (x, y)))
                .Where(cell => rectangle.Contains(new Point(cell.x, cell.y))),
        ];
    }

    private static (double X, double Y) Rotated((double X, double Y) p, double degrees, double x, double y)
    {
        (double sin, double cos) = Math.SinCos(degrees * Math.PI / 180);
        return (x + ((p.X - x) * cos) - ((p.Y - y) * sin), y + ((p.X - x) * sin) + ((p.Y - y) * cos));
    }

    private delegate (double X, double Y) PlaneMap((double X, double Y) point);
}
