using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Isolines of a face of splines: a sheet of 4 × 2 that bends up by 1 along X, with four edges or a triangle
/// of three.</summary>
public class SplineFaceTests
{
    // Quadratic along X, straight along Y; z is 2·s·(1 - s) with s = x / 4. Weights of one are weights, too.
    private const string AcrossFirst =
        "exactsur nubs 2 1 open open none none 2 2 0 2 1 2 0 1 1 1 0 0 0 0 2 0 2 0 1 2 2 1 4 0 0 4 2 0 0";
    private const string AlongFirst =
        "exactsur nubs 2 1 open open none none 2 2 0 2 1 2 0 1 1 1 0 0 0 2 0 1 4 0 0 0 2 0 2 2 1 4 2 0 0";
    private const string Weighted =
        "exactsur full nurbs 2 1 u open open none none 2 2 0 2 1 2 0 1 1 1 "
        + "0 0 0 1 0 2 0 1 2 0 1 1 2 2 1 1 4 0 0 1 4 2 0 1 0";

    [Theory]
    [InlineData(AcrossFirst)]
    [InlineData(AlongFirst)]
    [InlineData(Weighted)]
    public void Lines_run_on_the_surface_from_edge_to_edge(string surface)
    {
        AcisWireframe edges = AcisReader.Read(Sheet(surface, Side(0, 0, 4, 0), Side(4, 0, 4, 2), Side(4, 2, 0, 2),
            Side(0, 2, 0, 0)))!;
        Assert.Equal(6, edges.Polylines.Count); // three in each direction
        Assert.All(edges.Polylines.SelectMany(static line => line), OnSurface);
        Assert.Equal(
            [(1.0, 1.0), (2, 2), (3, 3), (0, 4), (0, 4), (0, 4)],
            edges.Polylines.Select(static line => (Math.Round(line[0].X, 3), Math.Round(line[^1].X, 3))));
        Assert.All(edges.Polylines.Take(3), static line => Assert.Equal(2, Math.Abs(line[^1].Y - line[0].Y), 3));
    }

    [Fact]
    public void Lines_end_at_edges_within_the_surface()
    {
        // Below the diagonal, so that a line at x ends at y = x / 2.
        AcisWireframe edges = AcisReader.Read(
            Sheet(AcrossFirst, Side(0, 0, 4, 0), Side(4, 0, 4, 2), Side(4, 2, 0, 0)))!;
        Assert.All(edges.Polylines.Take(3), static line => Assert.Equal(
            line[0].X / 2, Math.Max(line[0].Y, line[^1].Y), 0.03));
        Assert.Equal(6, edges.Polylines.Count);
    }

    [Fact]
    public void Faces_with_edges_off_their_surface_have_none()
    {
        string off = "intcurve-curve $-1 forward { exactcur nubs 1 open 2 0 1 1 1 0 0 5 4 0 5 0 } I I #";
        Assert.Empty(AcisReader.Read(Sheet(AcrossFirst, (off, "0 0 5", "4 0 5")))!.Polylines);
    }

    private static void OnSurface(Vec3 point)
    {
        double s = point.X / 4;
        Assert.Equal(2 * s * (1 - s), point.Z, 3);
    }

    /// <summary>A straight side of the plan, as the curve on the sheet above it.</summary>
    private static (string Curve, string From, string To) Side(double x0, double y0, double x1, double y1)
    {
        double Z(double x) => 2 * (x / 4) * (1 - (x / 4));
        string At(double x, double y, double z) => FormattableString.Invariant($"{x} {y} {z}");

        // The middle point of a parabola through its ends and its middle.
        (double x, double y) = ((x0 + x1) / 2, (y0 + y1) / 2);
        double z = (2 * Z(x)) - ((Z(x0) + Z(x1)) / 2);
        (string from, string to) = (At(x0, y0, Z(x0)), At(x1, y1, Z(x1)));
        return ($"intcurve-curve $-1 forward {{ exactcur nubs 2 open 2 0 2 1 2 {from} {At(x, y, z)} {to} 0 }} I I #",
            from, to);
    }

    private static string[] Sheet(string surface, params (string Curve, string From, string To)[] sides)
    {
        List<string> text =
        [
            "400 0 1 0", "x", "1 1e-6 1e-10",
            "face $-1 $-1 $1 $-1 $-1 $2 forward #", "loop $-1 $-1 $3 $0 #",
            $"spline-surface $-1 forward {{ {surface} }} I I I I #",
        ];
        for (int i = 0; i < sides.Length; i++)
        {
            // A coedge, its edge, the curve, and the vertices with their points.
            int at = 3 + (7 * i);
            int next = 3 + (7 * ((i + 1) % sides.Length));
            text.AddRange(
            [
                $"coedge $-1 ${next} ${next} $-1 ${at + 1} forward $1 #",
                $"edge $-1 ${at + 3} ${at + 4} ${at} ${at + 2} forward #", sides[i].Curve,
                $"vertex $-1 ${at + 1} ${at + 5} #", $"vertex $-1 ${at + 1} ${at + 6} #",
                $"point $-1 {sides[i].From} #", $"point $-1 {sides[i].To} #",
            ]);
        }

        return [.. text];
    }
}
