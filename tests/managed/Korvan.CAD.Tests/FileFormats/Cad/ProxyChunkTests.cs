using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Chunks of stored graphics: places by hand calculation, and what bad ones become.</summary>
public class ProxyChunkTests
{
    private static readonly double[] Z = [0, 0, 1];

    private static readonly byte[] Unit = Chunk(6, 2, new double[] { 0, 0, 0, 1, 0, 0 });

    [Theory]
    [InlineData(0, 0, 1, 90, "2,0,0", "0,2,0")]
    [InlineData(0, 0, -1, 90, "2,0,0", "0,-2,0")] // seen from below
    [InlineData(0, 1, 0, 180, "2,0,0", "-2,0,0")]
    [InlineData(0, 0, 1, -90, "2,0,0", "0,-2,0")]
    [InlineData(0, 0, 5, 360, "2,0,0", "2,0,0")] // the length of the normal does not count
    public void Arcs_start_at_their_vector_and_turn_about_their_normal(
        double x, double y, double z, double degrees, string from, string to)
    {
        PlanarArc arc = Assert.Single(Emit(
            Chunk(4, new[] { 0, 0, 0, 2, x, y, z, 3, 0, 0, degrees * Math.PI / 180 }, 0)).Arcs);
        Assert.Equal((from, to), (At(arc, arc.Start), At(arc, arc.Start + arc.Sweep)));
    }

    [Theory]
    [InlineData("1 0 0 0 1 0 -1 0 0", "0,0,0", 1, 180)]
    [InlineData("1 0 0 0 -1 0 -1 0 0", "0,0,0", 1, 180)] // through the other half
    [InlineData("5 2 7 4 3 7 3 2 7", "4,2,7", 1, 180)]
    [InlineData("2 0 0 1.4142135623730951 1.4142135623730951 0 0 2 0", "0,0,0", 2, 90)]
    [InlineData("2 0 0 -2 0 0 0 2 0", "0,0,0", 2, 270)] // the long way, since the second point is there
    public void Arcs_pass_through_their_three_points(string points, string center, double radius, double degrees)
    {
        double[] numbers = [.. points.Split(' ').Select(static part =>
            double.Parse(part, System.Globalization.CultureInfo.InvariantCulture))];
        PlanarArc arc = Assert.Single(Emit(Chunk(5, numbers, 0)).Arcs);
        Assert.Equal(center, Text(arc.Plane.Point(arc.Center)));
        Assert.Equal((radius, degrees), (Math.Round(arc.Radius, 9), Math.Round(arc.Sweep * 180 / Math.PI, 6)));
        Assert.Equal(Text(new Vec3(numbers[6], numbers[7], numbers[8])), At(arc, arc.Start + arc.Sweep));
        PlanarArc circle = Assert.Single(Emit(Chunk(3, numbers)).Arcs);
        Assert.True(circle.IsCircle && circle.Sweep == Math.Tau);
    }

    [Fact]
    public void Three_points_of_a_line_are_a_line()
    {
        Assert.Equal("0,0,0 1,1,0 3,3,0", Assert.Single(Emit(
            Chunk(5, new double[] { 0, 0, 0, 1, 1, 0, 3, 3, 0 }, 0)).Lines));
    }

    [Fact]
    public void Transforms_nest_end_and_never_run_out()
    {
        double[] twice = [2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1];
        double[] turn = [0, -1, 0, 5, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];
        byte[] pop = Chunk(31);
        Assert.Equal(
            ["0,0,0 1,0,0", "5,0,0 5,2,0", "5,0,0 5,1,0", "0,0,0 1,0,0", "0,0,0 1,0,0"],
            Emit(pop, Unit, Chunk(29, turn), Chunk(30, twice), Unit, pop, Unit, pop, Unit, pop, pop, Unit).Lines);

        // What is not finite is no map, but ends with its own end.
        double[] bad = [double.NaN, .. new double[15]];
        Assert.Equal(["5,0,0 5,1,0", "5,0,0 5,1,0"], Emit(Chunk(29, turn), Chunk(29, bad), Unit, pop, Unit).Lines);
        byte[][] deep = [.. Enumerable.Repeat(Chunk(29, twice), 500)];
        Assert.Single(Emit([.. deep, Unit]).Lines);
    }

    /// <summary>Why nothing is drawn, and the chunk.</summary>
    public static readonly TheoryData<string, byte[]> Empty = new()
    {
        { "a type that there is not", Chunk(77, 1, 2, 3) },
        { "extents alone", Chunk(1, new double[6]) },
        { "a line of one point", Chunk(6, 1, new double[3]) },
        { "more points than bytes", Chunk(6, 1000, new double[6]) },
        { "fewer than no points", Chunk(6, -1, new double[6]) },
        { "a point that is not a number", Chunk(6, 2, new double[] { 0, 0, 0, double.NaN, 0, 0 }) },
        { "a circle without a number", Chunk(2, new[] { 0, 0, 0, double.PositiveInfinity, 0, 0, 1 }) },
        { "an arc of a hundred turns", Chunk(4, new[] { 0, 0, 0, 2.0, 0, 0, 1, 1, 0, 0, 700 }, 0) },
        { "a mesh of one row", Chunk(8, 1, 4, new double[12], 0, 0, 0) },
        { "a mesh larger than its bytes", Chunk(8, 46341, 46341, new double[12]) },
        { "a mesh with a point that is not finite", Chunk(
            8, 2, 2, new[] { double.NaN, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0 }, 0, 0, 0) },
        { "a shell with a point that is not finite", Chunk(9, 3, new[] { double.NaN, 0, 0, 1, 0, 0, 0, 1, 0 }, 4, 3, 0,
            1, 2, 0, 0, 0) },
        { "a shell without faces", Chunk(9, 3, new double[9], 0, 0, 0, 0) },
        { "a text without height", Chunk(10, new double[3], Z, new double[] { 1, 0, 0, 0, 1, 0 }, "a") },
        { "a text of no finite width", Chunk(10, new double[3], Z, new[] { 1, 0, 0, 2, double.NaN, 0 }, "a") },
        { "a line without end and direction", Chunk(12, new double[6]) },
        { "a polyline of no bytes", Chunk(33, 0) },
        { "a polyline of more bytes than there are", Chunk(33, 500, 1) },
    };

    [Theory]
    [MemberData(nameof(Empty))]
    public void Chunks_that_show_nothing_do_no_harm_to_others(string why, byte[] chunk)
    {
        Recorder alone = new();
        Assert.False(EntityGeometry.Emit(Entity(chunk), alone), why);
        Recorder after = Emit(chunk, Unit);
        Assert.True(after.Lines is ["0,0,0 1,0,0"], why);
    }

    [Theory]
    [InlineData(0, 2)] // shorter than a header: nothing after it is read
    [InlineData(7, 2)]
    [InlineData(-1, 2)]
    [InlineData(int.MaxValue, 2)]
    public void A_length_that_cannot_be_ends_the_graphics(int length, int lines)
    {
        byte[] bad = Chunk(77, 1);
        BitConverter.GetBytes(length).CopyTo(bad, 0);
        Assert.Equal(lines, Emit(Unit, Unit, bad, Unit).Lines.Count);
    }

    [Fact]
    public void Faces_of_shells_hide_edges_and_skip_corners_that_are_not_there()
    {
        double[] square = [0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0];
        int[] faces = [4, 0, 1, 2, 3, -3, 0, 1, 2, 3, 0, 1, 9]; // a face, a hole, and a corner beyond the points
        const int colorsAndVisibility = 0x41;
        int[] colors = [.. Enumerable.Repeat(1, 10)];
        int[] visible = [1, 0, 1, 0, 1, 1, 0, 1, 1, 1];
        Recorder sink = Emit(Chunk(9, 4, square, faces.Length, faces, colorsAndVisibility, colors, visible));
        Assert.Equal([(4, 0b1010), (3, 0b100), (0, 0)], sink.Faces);
        Assert.Equal([(4, 0), (3, 0), (0, 0)], Emit(Chunk(9, 4, square, faces.Length, faces, 0)).Faces);
    }

    [Theory]
    [InlineData(unchecked((int)0xc0000000), 256, -1)]
    [InlineData(unchecked((int)0xc1000000), 0, -1)]
    [InlineData(unchecked((int)0xc2ff8000), -1, 0xff8000)]
    [InlineData(unchecked((int)0xc3000007), 7, -1)]
    [InlineData(0x12345678, 256, -1)] // of no kind that is known: by layer
    public void Colours_have_their_kind_in_the_highest_byte(int stored, int index, int rgb)
    {
        ShapeTraits traits = Emit(Chunk(22, stored), Unit).Told[^1];
        Assert.Equal((index, rgb), (traits.Color, traits.TrueColor));
    }

    private static Recorder Emit(params byte[][] chunks)
    {
        Recorder sink = new();
        Assert.True(EntityGeometry.Emit(Entity(chunks), sink));
        return sink;
    }

    private static CadEntityBase Entity(params byte[][] chunks)
    {
        byte[] all = [.. chunks.SelectMany(static one => one)];
        byte[] data = [.. BitConverter.GetBytes(8 + all.Length), .. BitConverter.GetBytes(chunks.Length), .. all];
        IEnumerable<object> parts = data.Chunk(127).SelectMany(static part =>
            new object[] { 310, Convert.ToHexString(part) });
        return DxfText.Load(DxfText.Drawing(
            [0, "ACME_WALL", 5, "A1", 100, "AcDbEntity", 8, "0", 160, data.Length, .. parts])).Entities[0];
    }

    private static byte[] Chunk(int type, params object[] parts)
    {
        byte[] body = [.. parts.SelectMany(static part => part switch
        {
            int number => BitConverter.GetBytes(number),
            int[] numbers => [.. numbers.SelectMany(BitConverter.GetBytes)],
            double[] numbers => [.. numbers.SelectMany(BitConverter.GetBytes)],
            string text => Encoding.Latin1.GetBytes(text.PadRight((text.Length / 4 * 4) + 4, '\0')),
            _ => throw new InvalidDataException($"{part}"),
        })];
        return [.. BitConverter.GetBytes(8 + body.Length), .. BitConverter.GetBytes(type), .. body];
    }

    private static string At(in PlanarArc arc, double angle) => Text(arc.Plane.Point(
        arc.Center + new Vec3(arc.Radius * Math.Cos(angle), arc.Radius * Math.Sin(angle), 0)));

    private static string Text(Vec3 p) => FormattableString.Invariant($"{R(p.X)},{R(p.Y)},{R(p.Z)}");

    private static double R(double value) => Math.Round(value, 6) + 0.0;

    private sealed class Recorder : IGeometrySink
    {
        internal List<PlanarArc> Arcs { get; } = [];

        internal List<string> Lines { get; } = [];

        internal List<(int Count, int Hidden)> Faces { get; } = [];

        internal List<ShapeTraits> Told { get; } = [];

        void IGeometrySink.Traits(in ShapeTraits traits) => Told.Add(traits);

        void IGeometrySink.Arc(in PlanarArc arc) => Arcs.Add(arc);

        void IGeometrySink.Polyline(ReadOnlySpan<Vec3> points, bool closed) =>
            Lines.Add(string.Join(' ', points.ToArray().Select(Text)));

        void IGeometrySink.Faces(FaceSet faces) =>
            Faces.AddRange(faces.Faces.Select(static face => (face.Count, face.HiddenEdges)));
    }
}
