using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Korvan.CAD.Geometry;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Graphics that files store with entities of unknown classes.</summary>
public class ProxyGraphicsTests
{
    private static readonly double[] Z = [0.0, 0, 1];

    [Fact]
    public void Every_kind_of_shape_is_given()
    {
        Recorder sink = Emit(
            Chunk(2, N([1.0, 2, 3, 5, .. Z])),
            Chunk(4, N([0.0, 0, 0, 2, .. Z, 0, 1, 0, Math.PI / 2]), 0),
            Chunk(3, N([1.0, 0, 0, 0, 1, 0, -1, 0, 0])),
            Chunk(5, N([1.0, 0, 0, 0, 1, 0, -1, 0, 0]), 0),
            Chunk(6, 2, N([0.0, 0, 0, 4, 0, 0])),
            Chunk(7, 3, N([0.0, 0, 0, 4, 0, 0, 4, 4, 0])),
            Chunk(20, 1),
            Chunk(7, 3, N([0.0, 0, 0, 4, 0, 0, 4, 4, 0])),
            Chunk(8, 2, 2, N([0.0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0]), 0, 0, 0),
            Chunk(9, 3, N([0.0, 0, 0, 1, 0, 0, 0, 1, 0]), 4, 3, 0, 1, 2, 0x41, 7, 8, 9, 1, 0, 1, 0, 0),
            Chunk(10, N([1.0, 2, 0, .. Z, 0, 1, 0, 2.5, 0.5, 0]), "ab"),
            Chunk(38, N([1.0, 2, 0, .. Z, 1, 0, 0]), new Unicode("Größe"), -1, 1, N([3.0, 1, 0, 1]), 0, 1, 0, 0, 0),
            Chunk(12, N([0.0, 0, 0, 0, 3, 0])),
            Chunk(13, N([0.0, 0, 0, 3, 0, 0])));
        Assert.Equal(
            [
                "circle 1,2,3 r5", "arc from 0,2,0 to -2,0,0", "circle 0,0,0 r1", "arc from 1,0,0 to -1,0,0",
                "path 0,0,0 4,0,0", "ring 0,0,0 4,0,0 4,4,0", "fill 0,0,0 4,0,0 4,4,0", "grid 2x2",
                "face of 3 hides 2",
                "text ab 2.5 at 1,2,0 along 0,1,0 width 0.5 flags 0",
                "text Größe 3 at 1,2,0 along 1,0,0 width 1 flags 4",
                "line 0,0,0 0,1,0 both", "line 0,0,0 1,0,0 one",
            ],
            sink.Shapes);
    }

    [Fact]
    public void Traits_hold_for_what_follows_and_transforms_nest()
    {
        double[] shift = [1.0, 0, 0, 10, 0, 1, 0, 20, 0, 0, 1, 0, 0, 0, 0, 1];
        double[] twice = [2.0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1];
        byte[] line = Chunk(6, 2, N([0.0, 0, 0, 1, 0, 0]));
        Recorder sink = Emit(
            Chunk(14, 3), Chunk(16, 1), Chunk(18, 0x7fff), Chunk(23, 35), Chunk(29, shift), Chunk(29, twice), line,
            Chunk(31), Chunk(22, unchecked((int)0xc2102030)), Chunk(24, N([2.0])), line, Chunk(31), Chunk(31),
            Chunk(22, unchecked((int)0xc0000000)), line, line);
        Assert.Equal(
            ["path 10,20,0 12,20,0", "path 10,20,0 11,20,0", "path 0,0,0 1,0,0", "path 0,0,0 1,0,0"], sink.Shapes);
        var first = new ShapeTraits { Color = 3, Layer = 1, LineWeight = 35 };
        ShapeTraits second = first with { TrueColor = 0x102030, LineTypeScale = 2 };
        Assert.Equal([first, second, second with { Color = 256, TrueColor = -1 }], sink.Told);
    }

    [Fact]
    public void Clips_are_in_a_plane_of_their_own_and_end_with_the_graphics()
    {
        double[] identity = [1.0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];
        double[] shift = [1.0, 0, 0, 10, 0, 1, 0, 20, 0, 0, 1, 0, 0, 0, 0, 1];
        double[] back = [1.0, 0, 0, -1, 0, 1, 0, -2, 0, 0, 1, 0, 0, 0, 0, 1];
        byte[] line = Chunk(6, 2, N([0.0, 0, 0, 1, 0, 0]));
        object[] ends = [0, 0, N([0.0, 0]), 0];
        Recorder sink = Emit(
            Chunk(29, shift),
            Chunk(27, [N([.. Z, 0, 0, 0]), 2, N([0.0, 0, 4, 3]), identity, identity, .. ends]), line,
            Chunk(27, [N([.. Z, 0, 0, 0]), 3, N([0.0, 0, 4, 0, 0, 3]), back, identity, .. ends]),
            Chunk(27, [N([.. Z, 0, 0, 0]), 1, N([0.0, 0]), identity, identity, .. ends]), Chunk(28), line, Chunk(28),
            Chunk(28), Chunk(28),
            Chunk(27, [N([.. Z, 0, 0, 0]), 2, N([0.0, 0, 1, 1]), identity, identity, .. ends]));
        Assert.Equal(
            [
                "clip 10,20,0 14,20,0 14,23,0 10,23,0", "path 10,20,0 11,20,0", "clip 11,22,0 15,22,0 11,25,0",
                "path 10,20,0 11,20,0", "end", "end", "clip 10,20,0 11,20,0 11,21,0 10,21,0", "end",
            ],
            sink.Shapes);

        byte[] data = Data(
            Chunk(14, 1), Chunk(20, 1),
            Chunk(27, [N([.. Z, 0, 0, 0]), 2, N([0.0, 0, 20, 90]), identity, identity, .. ends]),
            Chunk(7, 4, N([10.0, 10, 0, 40, 10, 0, 40, 40, 0, 10, 40, 0])));
        using TestPage page = TestPage.Of(TestPage.Drawing(Entity(data)));
        Assert.Equal((0, 255), (page[15, 25].G, page[25, 25].G));
    }

    [Fact]
    public void Packed_polylines_have_bulges_and_share_bytes_of_coordinates()
    {
        // Flags 528 (closed, bulges), 2 vertices, 2 bulges: (1, 2), then x of which four bytes differ and the same y.
        var bits = new StringBuilder("00" + Byte(0x10) + Byte(2) + "01" + Byte(2) + "01" + Byte(2));
        Array.ForEach([.. BitConverter.GetBytes(1.0), .. BitConverter.GetBytes(2.0)], one => bits.Append(Byte(one)));
        bits.Append("01" + Byte(0) + Byte(0) + Byte(0x10) + Byte(0) + "00");
        bits.Append("01" + "10");
        byte[] packed = [.. bits.ToString().PadRight(8 * ((bits.Length + 7) / 8), '0').Chunk(8)
            .Select(static one => Convert.ToByte(new string(one), 2))];
        Recorder sink = Emit(Chunk(33, packed.Length, packed));
        double x = BitConverter.Int64BitsToDouble(BitConverter.DoubleToInt64Bits(1) | 0x100000);
        Assert.Equal([(1.0, 2.0, 1.0), (x, 2.0, 0.0)], sink.Packed);

        PackedPolyline? cut = PackedPolyline.Read(packed.AsSpan(0, packed.Length - 8));
        Assert.Null(cut);

        static string Byte(int value) => Convert.ToString(value & 0xff, 2).PadLeft(8, '0');
    }

    [Fact]
    public void Damaged_chunks_draw_what_is_whole_and_never_fail()
    {
        byte[] whole = Data(
            Chunk(6, 2, N([0.0, 0, 0, 4, 0, 0])), Chunk(9, 3, N([0.0, 0, 0, 1, 0, 0, 0, 1, 0]), 4, 3, 0, 1, 2, 0, 0, 0),
            Chunk(11, N([1.0, 2, 0, .. Z, 1, 0, 0]), "text", -1, 1, N([3.0, 1, 0, 1]), 0, 0, 0, 0, 0));
        var random = new Random(7);
        for (int round = 0; round < 3000; round++)
        {
            byte[] damaged = [.. whole.AsSpan(0, random.Next(whole.Length + 1))];
            for (int i = random.Next(4); i > 0 && damaged.Length > 0; i--)
            {
                damaged[random.Next(damaged.Length)] = (byte)random.Next(256);
            }

            var sink = new Recorder();
            EntityGeometry.Emit(Entity(damaged), sink);
            Assert.InRange(sink.Shapes.Count, 0, 6);
        }

        Assert.False(EntityGeometry.Emit(Entity([]), new Recorder()));
    }

    [Theory]
    [InlineData("ACME_WALL")] // of no known class
    [InlineData("ACAD_PROXY_ENTITY")]
    public void Stored_graphics_are_drawn_with_their_own_colours(string name)
    {
        byte[] data = Data(Chunk(14, 1), Chunk(20, 1), Chunk(7, 4, N([10.0, 10, 0, 40, 10, 0, 40, 40, 0, 10, 40, 0])));
        DxfImage drawing = DxfText.Load(DxfText.Drawing(Tags(data, name)));
        foreach (CadImage image in new CadImage[] { drawing, DxfText.Reload(drawing) })
        {
            Assert.Equal(name, image.Entities[0].DxfName);
            using TestPage picture = TestPage.Of(image);
            Assert.Equal((255, 0, 0), (picture[25, 25].R, picture[25, 25].G, picture[25, 25].B));
            Assert.Equal((255, 255, 255), (picture[60, 60].R, picture[60, 60].G, picture[60, 60].B));
        }
    }

    private static Recorder Emit(params byte[][] chunks)
    {
        var sink = new Recorder();
        Assert.True(EntityGeometry.Emit(Entity(Data(chunks)), sink));
        return sink;
    }

    private static CadEntityBase Entity(byte[] data) => DxfText.Load(DxfText.Drawing(Tags(data))).Entities[0];

    private static object[] Tags(byte[] data, string name = "ACME_WALL")
    {
        object[] graphics =
            [.. data.Chunk(127).SelectMany(static part => new object[] { 310, Convert.ToHexString(part) })];
        return name == "ACAD_PROXY_ENTITY"
            ? [0, name, 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbProxyEntity", 90, 498, 91, 500, 92, data.Length,
                .. graphics, 93, 8, 310, "FF", 94, 0]
            : [0, name, 5, "A1", 100, "AcDbEntity", 8, "0", 160, data.Length, .. graphics];
    }

    private static byte[] Data(params byte[][] chunks) =>
        [.. BitConverter.GetBytes(8 + chunks.Sum(static one => one.Length)), .. BitConverter.GetBytes(chunks.Length),
            .. chunks.SelectMany(static one => one)];

    private static byte[] Chunk(int type, params object[] parts)
    {
        using var body = new MemoryStream();
        foreach (object part in parts)
        {
            body.Write(part switch
            {
                int number => BitConverter.GetBytes(number),
                double[] numbers => [.. numbers.SelectMany(BitConverter.GetBytes)],
                byte[] bytes => bytes,
                Unicode text => Padded(Encoding.Unicode.GetBytes(text.Value + "\0")),
                string text => Padded(Encoding.Latin1.GetBytes(text + "\0")),
                _ => throw new ArgumentException(part.ToString()),
            });
        }

        return [.. BitConverter.GetBytes(8 + (int)body.Length), .. BitConverter.GetBytes(type), .. body.ToArray()];
    }

    private static byte[] Padded(byte[] bytes) => [.. bytes, .. new byte[(4 - (bytes.Length % 4)) % 4]];

    private static double[] N(double[] numbers) => numbers;

    private sealed record Unicode(string Value);

    private sealed class Recorder : IGeometrySink
    {
        internal List<string> Shapes { get; } = [];

        internal List<ShapeTraits> Told { get; } = [];

        internal List<(double X, double Y, double Bulge)> Packed { get; } = [];

        public void Traits(in ShapeTraits traits) => Told.Add(traits);

        public void Arc(in PlanarArc arc)
        {
            (Affine3 plane, Vec3 center, double radius, double start, double sweep) = arc;
            Vec3 At(double angle) =>
                plane.Point(center + new Vec3(radius * Math.Cos(angle), radius * Math.Sin(angle), 0));
            Shapes.Add(arc.IsCircle
                ? $"circle {Text(plane.Point(center))} r{radius:0.###}"
                : $"arc from {Text(At(start))} to {Text(At(start + sweep))}");
        }

        public void Polyline(ReadOnlySpan<Vec3> points, bool closed) => Add(closed ? "ring" : "path", points);

        public void Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
        {
            foreach (PolyVertex vertex in vertices)
            {
                Packed.Add((vertex.Point.X, vertex.Point.Y, vertex.Bulge));
            }

            Shapes.Add("packed");
        }

        public void FilledPolygon(ReadOnlySpan<Vec3> corners) => Add("fill", corners);

        public void StartClip(ReadOnlySpan<Vec3> corners) => Add("clip", corners);

        public void EndClip() => Shapes.Add("end");

        public void Grid(in PointGrid grid) => Shapes.Add($"grid {grid.Rows}x{grid.Columns}");

        public void Faces(FaceSet faces) =>
            Shapes.AddRange(faces.Faces.Select(static face => $"face of {face.Count} hides {face.HiddenEdges}"));

        public void InfiniteLine(Vec3 from, Vec3 direction, bool bothWays) =>
            Shapes.Add($"line {Text(from)} {Text(direction)} {(bothWays ? "both" : "one")}");

        public void Text(in TextLine text) => Shapes.Add(FormattableString.Invariant(
            $"text {text.Content} {text.Height} at {Text(text.Plane.Origin)} along {Text(text.Plane.AxisX)} width ")
            + FormattableString.Invariant($"{text.WidthFactor} flags {text.Source.TextGenerationFlags}"));

        private void Add(string kind, ReadOnlySpan<Vec3> points) =>
            Shapes.Add($"{kind} {string.Join(' ', points.ToArray().Select(Text))}");

        private static string Text(Vec3 p) =>
            FormattableString.Invariant($"{Clean(p.X):0.###},{Clean(p.Y):0.###},{Clean(p.Z):0.###}");

        private static double Clean(double value) => Math.Abs(value) < 1e-9 ? 0 : value;
    }
}
