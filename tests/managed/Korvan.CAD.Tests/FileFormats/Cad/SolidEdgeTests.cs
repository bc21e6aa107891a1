using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Edges of solids, surfaces and regions out of the text of their modeler.</summary>
public class SolidEdgeTests
{
    private const string Ellipse = "ellipse-curve $-1 0 0 0 0 0 1 1 0 0 1 I I";
    private const string Spline =
        "intcurve-curve $-1 forward { exactcur nubs 2 open 2 0 2 1 2 1 0 0 1 1 0 0 1 0 0 } I I";
    private const string Rational =
        "intcurve-curve $-1 forward { exactcur full nurbs 2 open 2 0 2 1 2 1 0 0 1 1 1 0 1 0 1 0 2 0 } I I";

    // The body is twice as large as its records say, and moved by (10, 20, 30).
    [Theory]
    [InlineData("straight-curve $-1 1 0 0 -0.7 0.7 0 I I", "forward", "0 1", 10, 20, 12, 22)]
    [InlineData(Ellipse, "forward", "0 1", 10, 20, 12, 22)]
    [InlineData(Ellipse, "reversed", "0 1", 8, 18, 12, 22)] // the other way around
    [InlineData(Ellipse, "forward", "1 0", 8, 18, 12, 22)] // one vertex: a whole turn
    [InlineData(Spline, "forward", "0 1", 10, 20, 12, 22)]
    [InlineData(Spline, "reversed", "0.75 0.75", 11.5, 20, 12, 21.5)] // half of the curve
    [InlineData(Rational, "forward", "0 1", 10, 20, 12, 22)]
    public void Edges_run_between_their_vertices_along_their_curve(
        string curve, string sense, string end, double minX, double minY, double maxX, double maxY)
    {
        string[] text = Body(curve, sense, end);
        CadImage drawing = TestPage.Drawing(Solid(text), Solid([.. text.Select(Encipher)]));
        foreach (CadEntityBase solid in drawing.Entities.ToArray())
        {
            drawing.Entities.Clear();
            drawing.Entities.Add(solid);
            Assert.Equal((minX, minY, 30), Rounded(drawing.MinPoint));
            Assert.Equal((maxX, maxY, 30), Rounded(drawing.MaxPoint));
            DrawingList list = Build(drawing);
            Assert.Equal((1, 0), (list.Items.Length, list.Skipped.Count));
        }
    }

    [Fact]
    public void Newer_texts_have_parameters_indices_and_strings_between_the_pointers()
    {
        string[] text =
        [
            "700 0 1 0", "@13 Some modeler @9 ACIS 32.0", "1 1e-6 1e-10",
            "body $-1 -1 $-1 $-1 $-1 $-1 #",
            "name-attrib $-1 -1 $-1 @6 a # {b #",
            "vertex $-1 -1 $-1 $6 $3 #", "point $-1 -1 $-1 1 2 3 #",
            "vertex $-1 -1 $-1 $6 $5 #", "point $-1 -1 $-1 4 6 3 #",
            "edge $-1 -1 $-1 $2 -2.5 $4 2.5 $-1 $7 forward @7 unknown #",
            "straight-curve $-1 -1 $-1 1 2 3 0.6 0.8 0", "I I #", // a record over two lines
            "edge $-1 -1 $-1 $2 0 $2 0 $-1 $-1 forward @7 unknown #", // the apex of a cone
            "End-of-ACIS-data", "edge $-1 $2 $4 $-1 $7 forward #",
        ];
        AcisWireframe edges = AcisReader.Read(text)!;
        Assert.Equal([(new(1, 2, 3), new(4, 6, 3))], edges.Lines);
        Assert.Equal(0, edges.UnreadEdges);
    }

    [Fact]
    public void Splines_are_found_by_the_index_of_their_definition()
    {
        string[] text =
        [
            .. Body(Spline, "forward", "0 1"), "intcurve-curve $-1 forward { ref 0 } I I #",
            "edge $-1 $1 $3 $-1 $8 forward #", "intcurve-curve $-1 forward { ref 9 } I I #",
            "edge $-1 $1 $3 $-1 $10 forward #",
        ];
        AcisWireframe edges = AcisReader.Read(text)!;
        Assert.Equal((2, 1), (edges.Splines.Count, edges.UnreadEdges));
        DrawingList list = Build(TestPage.Drawing(Solid(text)));
        Assert.Equal(1, list.Skipped["3DSOLID edge"]);
    }

    [Fact]
    public void Spheres_and_tori_have_circles_for_edges()
    {
        string[] header = ["400 0 1 0", "x", "1 1e-6 1e-10", "body $-1 $-1 $-1 $-1 #"];
        CadImage sphere = TestPage.Drawing(
            Solid([.. header, "sphere-surface $-1 1 2 3 5 1 0 0 0 0 1 forward_v I I I I #"]));
        Assert.Equal((-4.0, -3.0, -2.0), Rounded(sphere.MinPoint));
        CadImage torus = TestPage.Drawing(
            Solid([.. header, "torus-surface $-1 0 0 0 0 0 1 5 2 1 0 0 forward_v I I I I #"]));
        Assert.Equal((7.0, 7.0, 2.0), Rounded(torus.MaxPoint));
    }

    [Theory]
    [InlineData("0 0 5", "1", 4)] // a cylinder
    [InlineData("0 0 5", "0.5", 4)] // a cone
    [InlineData("1 0 5", "1", 0)] // the other end is not around the axis
    [InlineData("0 0 0", "1", 0)] // both ends are in one place
    public void Cylinders_and_cones_have_lines_between_their_ends(string top, string radius, int lines)
    {
        string slope = radius == "1" ? "0" : "-0.1";
        string[] text =
        [
            "400 0 1 0", "x", "1 1e-6 1e-10",
            "face $-1 $-1 $1 $-1 $-1 $9 forward #", // 0
            "loop $-1 $2 $3 $0 #", "loop $-1 $-1 $4 $0 #", // 1, 2
            "coedge $-1 $3 $3 $-1 $5 forward $1 #", "coedge $-1 $4 $4 $-1 $6 forward $2 #", // 3, 4
            "edge $-1 $7 $7 $3 $10 forward #", "edge $-1 $8 $8 $4 $11 forward #", // 5, 6
            "vertex $-1 $5 $12 #", "vertex $-1 $6 $13 #", // 7, 8
            $"cone-surface $-1 0 0 0 0 0 1 1 0 0 1 I I {slope} 1 forward I I I I #", // 9
            "ellipse-curve $-1 0 0 0 0 0 1 1 0 0 1 I I #",
            $"ellipse-curve $-1 {top} 0 0 -1 {radius} 0 0 1 I I #",
            "point $-1 1 0 0 #", $"point $-1 {radius} 0 5 #",
        ];
        AcisWireframe edges = AcisReader.Read(text)!;
        Assert.Equal((2, lines), (edges.Arcs.Count, edges.Lines.Count));
        double foot = double.Parse(radius, System.Globalization.CultureInfo.InvariantCulture);
        Assert.All(edges.Lines, line =>
        {
            Assert.Equal([1, 0, foot, 5], [
                Math.Round(line.From.Xy.Length, 6), line.From.Z, Math.Round(line.To.Xy.Length, 6), line.To.Z]);
        });
    }

    // Circles with the face on their left; the axis of all surfaces is Z, and all angles are from X.
    [Theory]
    [InlineData("sphere-surface $-1 0 0 0 5 1 0 0 0 0 1", "forward", "3:4", "forward", 3.0, 5.0)] // the cap above
    [InlineData("sphere-surface $-1 0 0 0 5 1 0 0 0 0 1", "forward", "3:4", "reversed", -5.0, 3.0)] // the rest
    [InlineData("sphere-surface $-1 0 0 0 -5 1 0 0 0 0 1", "forward", "3:4", "forward", -5.0, 3.0)] // from inside
    [InlineData("sphere-surface $-1 0 0 0 5 1 0 0 0 0 1", "reversed", "3:4", "forward", -5.0, 3.0)]
    [InlineData("torus-surface $-1 0 0 0 0 0 1 5 2 1 0 0", "forward", "2:5", "forward", -2.0, 2.0)] // no other edge
    [InlineData("cone-surface $-1 0 0 0 0 0 1 1 0 0 1 I I 1 1", "forward", "2:3", "reversed", -1.0, 2.0)] // an apex
    [InlineData("cone-surface $-1 0 0 0 0 0 1 1 0 0 1 I I 0 1", "forward", "2:1", "forward", 0, 0)] // no other end
    [InlineData("sphere-surface $-1 0 0 0 5 1 0 0 0 0 1", "forward", "3:4.1", "forward", 0, 0)] // not on the surface
    public void Isolines_end_at_the_edges_of_their_face(
        string surface, string sense, string circle, string direction, double bottom, double top)
    {
        string[] parts = circle.Split(':'); // height and radius
        string[] text =
        [
            "400 0 1 0", "x", "1 1e-6 1e-10",
            $"face $-1 $-1 $1 $-1 $-1 $6 {sense} single #", "loop $-1 $-1 $2 $0 #",
            $"coedge $-1 $2 $2 $-1 $3 {direction} $1 #", "edge $-1 $4 $4 $2 $7 forward #",
            "vertex $-1 $3 $5 #", $"point $-1 {parts[1]} 0 {parts[0]} #", surface + " forward_v I I I I #",
            $"ellipse-curve $-1 0 0 {parts[0]} 0 0 1 {parts[1]} 0 0 1 I I #",
        ];
        AcisWireframe edges = AcisReader.Read(text)!;
        edges.Arcs.RemoveAt(0); // the edge
        List<double> heights = [.. edges.Lines.SelectMany(static line => new[] { line.From.Z, line.To.Z })];
        foreach (AcisArc arc in edges.Arcs)
        {
            for (int i = 0; i <= 64; i++)
            {
                heights.Add(arc.At(arc.Start + (arc.Sweep * i / 64)).Z);
            }
        }

        Assert.Equal((bottom, top), heights.Count == 0 ? (0, 0)
            : (Math.Round(heights.Min(), 3), Math.Round(heights.Max(), 3)));
    }

    [Theory]
    [InlineData("")]
    [InlineData("not a header|x|x|edge $-1 #")]
    [InlineData("400 0 1 0|x|x|edge $99 $-7 $0 $ forward #|edge #|# #")]
    [InlineData("400 0 1 0|x|x|vertex $0 $1 #|point $-1 nan 1e999 #|straight-curve $-1 #|edge $-1 $0 $0 $2 #")]
    [InlineData("400 0 1 0|x|x|vertex $1 #|point 0 0 0 #|ellipse-curve $-1 1 2 #|edge $0 $0 $2 x #|@99999 z")]
    [InlineData("400 0 1 0|x|x|vertex $1 #|point 0 0 0 #|intcurve-curve { nubs 3 open 999999 1 #|edge $0 $0 $2 #")]
    public void Text_that_cannot_be_read_is_counted_and_draws_nothing(string lines)
    {
        DrawingList list = Build(TestPage.Drawing(Solid(lines.Split('|'))));
        Assert.True(list.Items.IsEmpty);
        Assert.Equal(1, list.Skipped["3DSOLID"]);
    }

    [Fact]
    public void Surfaces_and_polygons_are_drawn_from_the_tags_that_are_kept()
    {
        IEnumerable<string> text = Body(Ellipse, "forward", "1 0").Select(line => $"1\n{Encipher(line)}\n");
        string surface = "0\nSURFACE\n5\nA0\n100\nAcDbEntity\n8\n0\n100\nAcDbModelerGeometry\n70\n1\n"
            + string.Concat(text) + "100\nAcDbSurface\n71\n6\n";
        const string polygon =
            "0\nMPOLYGON\n5\nA1\n100\nAcDbEntity\n8\n0\n62\n1\n100\nAcDbMPolygon\n70\n1\n10\n0\n20\n0\n"
            + "30\n0\n210\n0\n220\n0\n230\n1\n2\nSOLID\n71\n1\n91\n1\n92\n3\n73\n1\n72\n0\n93\n3\n10\n0\n"
            + "20\n50\n10\n90\n20\n50\n10\n45\n20\n95\n76\n1\n63\n5\n11\n0\n21\n0\n99\n0\n";
        using DxfImage drawing = DxfText.Load(DxfText.Header("AC1015") + "0\nSECTION\n2\nENTITIES\n" + surface + polygon
            + "0\nENDSEC\n0\nEOF\n");
        Assert.Equal((95.0, 90.0), (drawing.MaxPoint.Y, drawing.MaxPoint.X));
        DrawingList list = Build(drawing);
        Assert.Empty(list.Skipped);
        Assert.Equal(
            [new Rgba(0, 0, 255), new Rgba(255, 0, 0)], list.Items.ToArray()[1..].Select(item => item.Color));
    }

    [Theory]
    [InlineData('4')]
    [InlineData('8')]
    public void Binary_data_comes_from_the_section_of_its_entity(char word)
    {
        var data = new Sab(word);
        data.Type("asmheader").Add(0x0c, -1).Text("1.0").End();
        data.Type("vertex").Add(0x0c, -1).Add(4, -1).Add(0x0c, 2).End();
        data.Type("point").Add(0x0c, -1).Numbers(0x13, 1, 0, 0).End();
        data.Type("vertex").Add(0x0c, -1).Add(4, -1).Add(0x0c, 4).End();
        data.Type("point").Add(0x0c, -1).Numbers(0x13, 0, 1, 0).End();
        data.Type("ellipse", "curve").Add(0x0c, -1).Numbers(0x13, 0, 0, 0).Numbers(0x14, 0, 0, 1)
            .Numbers(0x14, 1, 0, 0).Numbers(6, 1).Flag(0x0b).Flag(0x0b).End();
        data.Type("edge").Add(0x0c, -1).Add(0x0c, 1).Numbers(6, 0).Add(0x0c, 3).Numbers(6, 1).Add(0x0c, -1).Add(0x0c, 5)
            .Flag(0x0a).End();
        string digits = Convert.ToHexString(data.Bytes);
        string text = DxfText.Header("AC1027") + DxfText.Entities(0, "3DSOLID", 5, "2A", 100, "AcDbEntity", 8, "0")
            + DxfText.Tags(
                0, "SECTION", 2, "ACDSDATA", 70, 2, 71, 2,
                0, "ACDSRECORD", 90, 1, 2, "AcDbDs::ID", 280, 10, 320, "2A", 2, "ASM_Data", 280, 15, 94,
                digits.Length / 2, 310, digits[..50], 310, digits[50..],
                0, "ACDSRECORD", 90, 1, 2, "AcDbDs::ID", 280, 10, 320, "2B", 2, "ASM_Data", 280, 15, 94, 1, 310, "00",
                0, "ENDSEC", 0, "EOF");
        using DxfImage drawing = DxfText.Load(text);
        Assert.Equal((-1, -1, 0), Rounded(drawing.MinPoint)); // reversed: three quarters of the circle
        Assert.Equal((1, 1, 0), Rounded(drawing.MaxPoint));
        for (int length = 0; length < data.Bytes.Length; length++)
        {
            AcisReader.Read(data.Bytes.AsSpan(0, length)); // no cut does harm
        }
    }

    [DrawingFact]
    public void Solids_of_other_programs_are_the_same_as_text_and_as_binary_data()
    {
        using var text = (CadImage)Image.Load(SharedDrawings.Dxf("lwg__example_2000.dxf"));
        using var binary = (CadImage)Image.Load(SharedDrawings.Dxf("lwg__example_2018.dxf"));
        Assert.Equal(Only(text), Only(binary));

        static (int Items, double Width, double Height) Only(CadImage drawing)
        {
            CadEntityBase[] solids = [.. drawing.Entities.Where(entity => entity is CadObjectWithAcisData)];
            drawing.Entities.Clear();
            drawing.Entities.AddRange(solids);
            DrawingList list = Build(drawing);
            Assert.Empty(list.Skipped);
            return (list.Items.Length, Math.Round(list.Bounds.Width, 3), Math.Round(list.Bounds.Height, 3));
        }
    }

    /// <summary>A body with an edge from (1, 0, 0) to another point.</summary>
    private static string[] Body(string curve, string sense, string end) =>
    [
        "400 7 1 0", "16 Some modeler 9 ACIS 1.0", "1 1e-6 1e-10",
        "body $-1 $-1 $-1 $7 #", "vertex $-1 $6 $2 #", "point $-1 1 0 0 #", "vertex $-1 $6 $4 #",
        $"point $-1 {end} 0 #", curve + " #", $"edge $-1 $1 $3 $-1 $5 {sense} #",
        "transform $-1 1 0 0 0 1 0 0 0 1 10 20 30 2 no_rotate no_reflect no_shear #",
    ];

    private static string Encipher(string line) => string.Concat(line.Select(static c =>
        c is > ' ' and < '\x7f' ? (char)(159 - c) == '^' ? "^ " : $"{(char)(159 - c)}" : $"{c}"));

    private static Cad3DSolid Solid(string[] text)
    {
        var solid = new Cad3DSolid();
        solid.AcisData.AddRange(text);
        return solid;
    }

    private static (double, double, double) Rounded(Cad3DPoint point) =>
        (Math.Round(point.X, 4), Math.Round(point.Y, 4), Math.Round(point.Z, 4));

    private static DrawingList Build(CadImage drawing)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
    }

    /// <summary>Writes binary data of a modeler.</summary>
    private sealed class Sab
    {
        private readonly List<byte> _bytes = [];
        private readonly bool _isLong;

        internal Sab(char word)
        {
            _isLong = word == '8';
            _bytes.AddRange(Encoding.Latin1.GetBytes("ASM BinaryFile" + word));
            _bytes.AddRange(new byte[4 * (_isLong ? 8 : 4)]);
            Text("Some modeler").Numbers(6, 1e-6);
        }

        internal byte[] Bytes => [.. _bytes];

        internal Sab Type(params string[] parts)
        {
            for (int i = 0; i < parts.Length; i++)
            {
                Text(parts[i], i == parts.Length - 1 ? (byte)0x0d : (byte)0x0e);
            }

            return this;
        }

        internal Sab Text(string text, byte kind = 7)
        {
            _bytes.AddRange([kind, (byte)text.Length, .. Encoding.Latin1.GetBytes(text)]);
            return this;
        }

        internal Sab Add(byte kind, int value)
        {
            _bytes.AddRange([kind, .. _isLong ? BitConverter.GetBytes((long)value) : BitConverter.GetBytes(value)]);
            return this;
        }

        internal Sab Numbers(byte kind, params double[] values)
        {
            _bytes.AddRange([kind, .. values.SelectMany(BitConverter.GetBytes)]);
            return this;
        }

        internal Sab Flag(byte kind)
        {
            _bytes.Add(kind);
            return this;
        }

        internal void End() => _bytes.Add(0x11);
    }
}
