using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Frames of underlays and embedded documents, and symbols of shape files.</summary>
public sealed class FrameTests : IDisposable
{
    private readonly string _folder = Directory.CreateTempSubdirectory("frames").FullName;

    public static readonly TheoryData<CadUnderlay> Underlays = [new CadPdfUnderlay(), new CadDwfUnderlay(),
        new CadDgnUnderlay()];

    public void Dispose() => Directory.Delete(_folder, recursive: true);

    [Theory]
    [MemberData(nameof(Underlays))]
    public void Underlays_draw_the_frame_of_their_clip(CadUnderlay underlay)
    {
        Place(underlay);
        underlay.ClipPoints.AddRange([new Cad2DPoint(1, 1), new Cad2DPoint(3, 2)]);
        DrawingList list = Build(TestPage.Drawing(underlay));

        // Scaled by 2 and 3, rotated by 90 degrees, moved by (10, 0).
        AssertBox(list, 4, 2, 7, 6);
        Assert.Equal(1, list.Skipped[$"content of {underlay.TypeNameText}"]);
        Assert.Equal((4.0, 7.0), Extents(underlay));
    }

    [Fact]
    public void Underlays_show_polygons_and_what_they_hide_and_nothing_while_off()
    {
        CadPdfUnderlay underlay = new();
        underlay.ClipPoints.AddRange([new Cad2DPoint(0, 0), new Cad2DPoint(9, 0), new Cad2DPoint(0, 9)]);
        underlay.InnerClipPoints.AddRange([new Cad2DPoint(1, 1), new Cad2DPoint(2, 1), new Cad2DPoint(1, 2)]);
        Assert.Equal(3, Lines(underlay));
        underlay.Flags |= UnderlayFlags.ClipInside;
        Assert.Equal(6, Lines(underlay));
        underlay.Flags &= ~UnderlayFlags.On;
        Assert.Equal(0, Lines(underlay));
    }

    [Fact]
    public void Embedded_documents_show_their_bitmap()
    {
        CadOle2Frame frame = new()
        {
            UpperLeftPoint = new Cad3DPoint(20, 80, 0),
            LowerRightPoint = new Cad3DPoint(80, 20, 0),
            Data = [1, 2, 3, .. Bitmap(), 9, 9],
        };
        using TestPage picture = TestPage.Of(TestPage.Drawing(frame));
        Rgba lowerLeft = picture[35, 35];
        Rgba upperRight = picture[65, 65];
        Assert.True(lowerLeft is { R: > 200, G: < 40, B: < 40 }, $"{lowerLeft}");
        Assert.True(upperRight is { R: < 40, G: < 40, B: > 200 }, $"{upperRight}");
        Assert.Equal((".bmp", 2.0), (frame.GetPreview()!.FileExtension, frame.GetPreview()!.Size.Width));
        Assert.Empty(Build(TestPage.Drawing(frame)).Skipped);
    }

    [Fact]
    public void A_bitmap_without_area_leaves_the_rest_of_the_page()
    {
        CadOle2Frame frame = new() { Data = Bitmap(), LowerRightPoint = new Cad3DPoint(50, 0, 0) };
        CadLine line = new() { FirstPoint = new Cad3DPoint(0, 50, 0), SecondPoint = new Cad3DPoint(100, 50, 0) };
        using TestPage page = TestPage.Of(TestPage.Drawing(frame, line));
        Assert.Contains(Enumerable.Range(45, 10), y => page[50, y].R < 200);
    }

    [Theory]
    [InlineData(false)]
    [InlineData(true)]
    public void Embedded_documents_without_a_bitmap_draw_their_frame(bool hasMetafile)
    {
        CadOle2Frame frame = new()
        {
            UpperLeftPoint = new Cad3DPoint(1, 4, 0),
            LowerRightPoint = new Cad3DPoint(6, 2, 0),
            Data = hasMetafile ? [7, .. Metafile()] : [0x28, 0, 0, 0, 255, 255, 255, 255],
        };
        DrawingList list = Build(TestPage.Drawing(frame));
        AssertBox(list, 1, 2, 6, 4);
        Assert.Equal(1, list.Skipped["content of OLE2FRAME"]);
        Assert.Equal(hasMetafile ? ".emf" : null, frame.GetPreview()?.FileExtension);
    }

    [Fact]
    public void A_preview_that_only_later_programs_can_draw_is_named()
    {
        CadOle2Frame frame = new()
        {
            UpperLeftPoint = new Cad3DPoint(1, 4, 0),
            LowerRightPoint = new Cad3DPoint(6, 2, 0),
            Data = [7, .. PlusMetafile()],
        };
        Assert.Equal(
            ["content of OLE2FRAME, whose preview has EMF+ records alone"],
            Build(TestPage.Drawing(frame)).Skipped.Keys);
    }

    [Fact]
    public void Shapes_are_drawn_from_the_file_that_a_style_names()
    {
        // A square of side 2 with a gap: up 2, right 2 by a displacement, pen up, then down 2 with the pen down.
        File.WriteAllBytes(Path.Combine(_folder, "marks.shx"), ShapeFileOf(
            ("GATE", [0x24, 8, 2, 0, 2, 0x18, 1, 0x2C, 0]), ("TWICE", [4, 2, 7, 130, 0])));
        CadImage drawing = Drawing(new CadShape
        {
            ShapeName = "gate",
            Size = 3,
            InsertionPoint = new Cad3DPoint(10, 0, 0),
        });
        DrawingList list = Build(drawing);
        AssertBox(list, 10, 0, 16, 6);
        Assert.Empty(list.Skipped);
        AssertBox(Build(Drawing(new CadShape { ShapeName = "TWICE", RotationAngle = 90 })), -4, 0, 0, 4);
        Assert.Equal(1, Build(Drawing(new CadShape { ShapeName = "OTHER" })).Skipped["SHAPE whose file is not there"]);
    }

    [Fact]
    public void Shapes_have_a_number_in_databases_and_a_name_in_text_files()
    {
        string file = Path.Combine(_folder, "marks.shx");
        string path = Path.Combine(_folder, "marks.dwg");
        File.WriteAllBytes(file, ShapeFileOf(("GATE", [0x24, 0]), ("TWICE", [4, 2, 7, 130, 0])));
        CadImage drawing = Drawing(new CadShape { ShapeName = "twice" });
        drawing.Styles.Add(new CadStyleTableObject { Flags = 1, PrimaryFontName = "others" });
        drawing.Save(path, new DwgOptions());
        using (CadImage named = (CadImage)Image.Load(path))
        {
            Assert.Equal("TWICE", Assert.IsType<CadShape>(named.Entities[0]).ShapeName);
            Assert.Empty(Build(named).Skipped);
        }

        File.Delete(file);
        using CadImage numbered = (CadImage)Image.Load(path);
        DxfOptions options = new();
        numbered.Save(Path.Combine(_folder, "marks.dxf"), options);
        Assert.Contains(options.RenderResult!.Failures, static one => one.Message.Contains("131"));

        // A release whose conversion takes a copy of the drawing.
        numbered.Save(path, new DwgOptions { Version = CadAcadVersion.AC1015 });
        using CadImage older = (CadImage)Image.Load(path);
        Assert.Equal(131, Assert.IsType<CadShape>(older.Entities[0]).ShapeNumber);
    }

    [Theory]
    [InlineData(new byte[] { 0x0A, 2, 0x04, 0 }, -2, 2)] // a half circle counterclockwise from octant 0
    [InlineData(new byte[] { 0x0A, 2, 0xFC, 0 }, -2, -2)] // the same clockwise
    [InlineData(new byte[] { 0x0C, 4, 0, 127, 0 }, 2, -2)] // a half circle by its bulge
    [InlineData(new byte[] { 0x0D, 4, 0, 0, 0, 2, 129, 0, 0, 0 }, 3, 1)] // several, the last one a half circle
    public void Arcs_of_shapes_bulge_to_the_side_that_they_state(byte[] code, double x, double y)
    {
        List<Vec2[]> strokes = ShapeFile.TryRead(ShapeFileOf(("ARC", code)))!.Find("ARC")!;
        Assert.Contains(strokes.Single(), point => Math.Abs(point.X - x) < 1e-6 && Math.Abs(point.Y - y) < 1e-6);
    }

    [Fact]
    public void Damaged_shape_files_are_no_shape_files()
    {
        byte[] good = ShapeFileOf(("GATE", [0x24, 0]));
        for (int length = 0; length < good.Length; length++)
        {
            Assert.Null(ShapeFile.TryRead(good[..length])?.Find("GATE"));
        }

        // A shape that draws itself ends, as one that is cut short does.
        Assert.Empty(ShapeFile.TryRead(ShapeFileOf(("LOOP", [7, 130, 0])))!.Find("LOOP")!);
        Assert.Empty(ShapeFile.TryRead(ShapeFileOf(("SHORT", [8, 1])))!.Find("SHORT")!);
    }

    private static void Place(CadUnderlay underlay)
    {
        (underlay.ScaleX, underlay.ScaleY, underlay.RotationAngle) = (2, 3, 90);
        underlay.InsertionPoint = new Cad3DPoint(10, 0, 0);
    }

    private static (double Left, double Right) Extents(CadUnderlay underlay)
    {
        CadImage drawing = TestPage.Drawing(underlay);
        return (drawing.MinPoint.X, drawing.MaxPoint.X);
    }

    private CadImage Drawing(CadShape shape)
    {
        CadImage drawing = TestPage.Drawing(shape);
        drawing.Styles.Add(new CadStyleTableObject
        {
            Name = "",
            Flags = (short)CadFontStyleTableFlag.Shape,
            PrimaryFontName = "marks",
        });
        drawing.Drawing.Folder = _folder;
        return drawing;
    }

    private static byte[] ShapeFileOf(params (string Name, byte[] Code)[] shapes)
    {
        const int first = 130;
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        writer.Write(Encoding.ASCII.GetBytes("AutoCAD-86 shapes V1.0\r\n\x1A"));
        writer.Write((ushort)first);
        writer.Write((ushort)(first + shapes.Length - 1));
        writer.Write((ushort)shapes.Length);
        for (int i = 0; i < shapes.Length; i++)
        {
            writer.Write((ushort)(first + i));
            writer.Write((ushort)(shapes[i].Name.Length + 1 + shapes[i].Code.Length));
        }

        foreach ((string name, byte[] code) in shapes)
        {
            writer.Write([.. Encoding.ASCII.GetBytes(name), 0, .. code]);
        }

        return stream.ToArray();
    }

    // Two by two pixels of 24 bits: red and green below blue and blue.
    private static byte[] Bitmap()
    {
        byte[] header = new byte[40];
        (header[0], header[4], header[8], header[12], header[14]) = (40, 2, 2, 1, 24);
        return [.. header, 0, 0, 255, 0, 255, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 0];
    }

    // A comment whose identifier announces records for later programs.
    private static byte[] PlusMetafile()
    {
        byte[] comment = new byte[20];
        (comment[0], comment[4], comment[8]) = (70, 20, 8);
        Encoding.ASCII.GetBytes("EMF+").CopyTo(comment, 12);
        byte[] whole = [.. Metafile(), .. comment];
        whole[48] = (byte)whole.Length;
        return whole;
    }

    private static byte[] Metafile()
    {
        byte[] header = new byte[88];
        (header[0], header[4], header[48]) = (1, 88, 88);
        Encoding.ASCII.GetBytes(" EMF").CopyTo(header, 40);
        return header;
    }

    private static int Lines(CadEntityBase entity)
    {
        DrawingList list = Build(TestPage.Drawing(entity));
        int lines = 0;
        foreach (ref readonly DisplayItem item in list.Items)
        {
            foreach (PathVerb verb in list.VerbsOf(item))
            {
                lines += verb is PathVerb.Line or PathVerb.Close ? 1 : 0;
            }
        }

        return lines;
    }

    private static DrawingList Build(CadImage drawing)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
    }

    private static void AssertBox(DrawingList list, double left, double bottom, double right, double top)
    {
        Assert.Equal(left, list.Bounds.MinX, 1e-6);
        Assert.Equal(bottom, list.Bounds.MinY, 1e-6);
        Assert.Equal(right, list.Bounds.MaxX, 1e-6);
        Assert.Equal(top, list.Bounds.MaxY, 1e-6);
    }
}
