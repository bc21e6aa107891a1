using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Texts of modelers with curves, maps and damage of all kinds; results by hand calculation.</summary>
public class AcisFormTests
{
    // A quadratic spline around a square of control points, closed at (1, 0).
    private const string Closed = "intcurve-curve $-1 forward { exactcur nubs 1 closed 5 0 1 1 1 2 1 3 1 4 1 "
        + "1 0 0 0 1 0 -1 0 0 0 -1 0 1 0 0 0 } I I";

    [Theory]
    [InlineData("0 1 0", "-1 0 0", "forward", "0 1, -0.5 0.5, -1 0")]
    [InlineData("0 -1 0", "0 1 0", "forward", "0 -1, 1 0, 0 1")] // over the joint of the curve
    [InlineData("0 1 0", "0 -1 0", "forward", "0 1, -1 0, 0 -1")]
    [InlineData("0 1 0", "0 -1 0", "reversed", "0 -1, 1 0, 0 1")] // the other part
    public void Parts_of_closed_curves_run_in_the_direction_of_the_edge(
        string start, string end, string sense, string expected)
    {
        AcisWireframe edges = Read(Edge(Closed, start, end, sense))!;
        Vec3[] points = Assert.Single(edges.Polylines);
        Assert.Equal(expected, string.Join(", ", new[] { points[0], points[points.Length / 2], points[^1] }.Select(
            static p => FormattableString.Invariant($"{R(p.X)} {R(p.Y)}"))));
    }

    [Theory]
    [InlineData("1 0 0 0 1 0 0 0 1 5 6 7 1", 6, 6, 7, 1)]
    [InlineData("0 1 0 -1 0 0 0 0 1 0 0 0 2", 0, 2, 0, 2)] // a quarter around Z, twice the size
    [InlineData("-1 0 0 0 1 0 0 0 1 0 0 0 1", -1, 0, 0, 1)] // mirrored
    [InlineData("1 0 0 0 1 0 0 0 1 5 6 7 0", 6, 6, 7, 1)] // no scale is one
    [InlineData("1 0 0 0 1 0 0 0 1 5 6", 1, 0, 0, 1)] // cut off: as without
    public void Maps_of_bodies_apply_to_every_curve(string map, double x, double y, double z, double scale)
    {
        string transform = $"transform $-1 {map} no_rotate no_reflect no_shear #";
        AcisWireframe line = Read([.. Edge("straight-curve $-1 0 0 0 1 0 0 I I", "1 0 0", "3 0 0"), transform])!;
        (Vec3 from, Vec3 to) = Assert.Single(line.Lines);
        Assert.Equal((x, y, z), (R(from.X), R(from.Y), R(from.Z)));
        Assert.Equal(2 * scale, (to - from).Length, 9);
        AcisArc arc = Assert.Single(Read([.. Edge(Circle, "1 0 0", "1 0 0"), transform])!.Arcs);
        Assert.Equal((x, y, z), (R(arc.At(0).X), R(arc.At(0).Y), R(arc.At(0).Z)));
        Assert.Equal((scale, Math.Tau), (R(arc.Major.Length), arc.Sweep));
    }

    [Theory]
    [InlineData("0 0 1", "1 0 0", 1, "0 1 0", 90)]
    [InlineData("0 0 -1", "1 0 0", 1, "0 1 0", 270)] // seen from below
    [InlineData("0 0 1", "2 0 0", 0.5, "0 1 0", 90)]
    [InlineData("1 0 0", "0 1 0", 1, "0 0 1", 90)]
    public void Arcs_turn_about_their_normal(string normal, string major, double ratio, string end, double degrees)
    {
        string curve = FormattableString.Invariant($"ellipse-curve $-1 0 0 0 {normal} {major} {ratio} I I");
        AcisArc arc = Assert.Single(Read(Edge(curve, major, end))!.Arcs);
        Assert.Equal(degrees, arc.Sweep * 180 / Math.PI, 9);
        Vec3 last = arc.At(arc.Start + arc.Sweep);
        Assert.Equal(end, FormattableString.Invariant($"{R(last.X)} {R(last.Y)} {R(last.Z)}"));
        AcisArc back = Assert.Single(Read(Edge(curve, major, end, "reversed"))!.Arcs);
        Assert.Equal(360 - degrees, back.Sweep * 180 / Math.PI, 9);
    }

    [Theory]
    [InlineData("nubs 1 open 2 0 1 1 1 0 0 0 2 2 2", 2, false)]
    [InlineData("nubs 3 open 2 0 3 1 3 0 0 0 1 2 0 2 2 0 2 0 0", 2, false)]
    [InlineData("nurbs 2 open 2 0 2 1 2 1 0 0 1 1 1 0 0.7071067811865476 0 1 0 1", 0, true)] // a quarter of a circle
    public void Splines_pass_through_their_ends(string definition, double lastX, bool isRound)
    {
        string start = definition.Contains("nurbs", StringComparison.Ordinal) ? "1 0 0" : "0 0 0";
        string end = lastX == 0 ? "0 1 0" : definition.Contains("nubs 1", StringComparison.Ordinal) ? "2 2 2" : "2 0 0";
        AcisSpline spline = Assert.Single(
            Read(Edge($"intcurve-curve $-1 forward {{ exactcur {definition} 0 }} I I", start, end))!.Splines);
        Assert.Equal(lastX, spline.Curve.At(spline.Curve.Last).X, 9);
        if (isRound)
        {
            Vec3 middle = spline.Curve.At((spline.Curve.First + spline.Curve.Last) / 2);
            Assert.Equal(1, middle.Length, 9);
        }
    }

    [Theory]
    [InlineData("nubs 0 open 2 0 1 1 1 0 0 0 2 0 0", "no degree")]
    [InlineData("nubs 101 open 2 0 1 1 1 0 0 0 2 0 0", "a degree beyond all")]
    [InlineData("nubs 1 open 2000000000 0 1 1 1 0 0 0 2 0 0", "more knots than tokens")]
    [InlineData("nubs 1 open 2 0 1 1 2000000000 0 0 0 2 0 0", "a knot that is repeated without end")]
    [InlineData("nubs 1 open 2 0 1 1 0 0 0 0 2 0 0", "a knot that is not there")]
    [InlineData("nubs 1 open 2 0 1 1 1 0 0 0 2 0", "a point that is cut off")]
    [InlineData("nubs 1 open 2 0 1 x 1 0 0 0 2 0 0", "a keyword for a knot")]
    [InlineData("nubs 1 open 2 5 1 1 1 0 0 0 2 0 0", "knots that fall")]
    [InlineData("nurbs 1 open 2 0 1 1 1 0 0 0 0 2 0 0 0", "weights of zero")]
    [InlineData("", "no spline at all")]
    [InlineData("ref 0", "a definition that refers to itself")]
    public void Damaged_splines_are_counted(string definition, string why)
    {
        string[] curve = Edge($"intcurve-curve $-1 forward {{ {definition} }} I I", "0 0 0", "2 0 0");
        string[] line = ["straight-curve $-1 0 0 0 1 0 0 I I #", "edge $-1 $1 $3 $-1 $7 forward #"];
        AcisWireframe edges = Read([.. curve, .. line])!;
        Assert.True((edges.Lines.Count, edges.UnreadEdges, edges.Splines.Count) == (1, 1, 0), why);
    }

    [Fact]
    public void Caret_and_blank_are_one_character_of_the_cipher()
    {
        Assert.Equal("A", SatText.Decipher("^"));
        Assert.Equal("AB C", SatText.Decipher("^ ] \\"));
        for (char plain = '!'; plain < '\x7f'; plain++)
        {
            string written = $"{(char)(159 - plain)}";
            Assert.Equal($"{plain}", SatText.Decipher(written == "^" ? "^ " : written));
        }
    }

    [Fact]
    public void Texts_with_lines_left_out_or_cut_short_are_read_as_far_as_they_go()
    {
        string[] text = [.. Header, .. Edge(Circle, "1 0 0", "0 1 0"), "sphere-surface $-1 0 0 0 1 #"];
        string whole = string.Join('\n', text);
        Random random = new(5);
        for (int i = 0; i < 400; i++)
        {
            string[] lines = i < text.Length
                ? [.. text[..i], .. text[(i + 1)..]]
                : whole[..random.Next(whole.Length)].Split('\n');
            AcisWireframe? edges = AcisReader.Read(lines);
            Assert.All(edges?.Arcs ?? [], static arc => Assert.True(arc.At(arc.Start).IsFinite && arc.Sweep > 0));
        }
    }

    private const string Circle = "ellipse-curve $-1 0 0 0 0 0 1 1 0 0 1 I I";

    private static readonly string[] Header = ["400 0 1 0", "16 Some modeler 9 ACIS 1.0", "1 1e-6 1e-10"];

    private static string[] Edge(string curve, string start, string end, string sense = "forward") =>
    [
        "body $-1 $-1 $-1 $-1 #", "vertex $-1 $5 $2 #", $"point $-1 {start} #", "vertex $-1 $5 $4 #",
        $"point $-1 {end} #", $"edge $-1 $1 $3 $-1 $6 {sense} #", curve + " #",
    ];

    private static AcisWireframe? Read(IEnumerable<string> records) => AcisReader.Read([.. Header, .. records]);

    private static double R(double value) => Math.Round(value, 6) + 0.0;
}
