using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Rendering.Scene;
using Xunit;
using static Korvan.CAD.Tests.Rendering.SceneList;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Where the lines and areas of each kind of entity lie, read from the list before any device.</summary>
public class EntityTests
{
    [Theory]
    [InlineData(270, 45, 135)] // through the start of the circle
    [InlineData(0, 360, 360)]
    [InlineData(30, 30, 360)] // equal angles are a whole circle
    [InlineData(-90, 90, 180)]
    public void Arcs_run_counter_clockwise_from_start_to_end(double start, double end, double sweep)
    {
        DrawingList list = Build(new CadArc { Radius = 10, StartAngle = start, EndAngle = end });
        Assert.Equal(sweep * Math.PI / 180 * 10, Length(list), 0.05); // measured along chords
    }

    [Fact]
    public void Planar_entities_follow_their_extrusion()
    {
        DrawingList list = Build(new CadCircle
        {
            CenterPoint = P(10, 5, 0),
            Radius = 1,
            ExtrusionDirection = P(0, 0, -1)
        });
        Assert.Equal(-10, list.Bounds.Center.X, 6);
        Assert.Equal(5, list.Bounds.Center.Y, 6);
        DrawingList line = Build(new CadLine
        {
            FirstPoint = P(1, 2, 0),
            SecondPoint = P(3, 4, 0),
            ExtrusionDirection = P(0, 0, -1)
        });
        Assert.Equal((1.0, 3.0), (line.Bounds.MinX, line.Bounds.MaxX));
    }

    [Fact]
    public void Ellipses_turn_with_their_major_axis()
    {
        DrawingList list = Build(new CadEllipse
        {
            MajorEndPoint = P(0, 10, 0),
            AxisRatio = 0.5,
            StartAngle = 0,
            EndAngle = Math.PI / 2
        });
        AssertBox(list, -5, 0, 0, 10);
    }

    [Fact]
    public void Polylines_leave_out_spline_frames_and_close_with_their_last_bulge()
    {
        var polyline = new CadPolyline { Flag = CadPolylineFlag.SplineFit | CadPolylineFlag.Closed };
        polyline.Vertices.AddRange(
        [
            new Cad2DVertex { LocationPoint = P(0, 0, 0) },
            new Cad2DVertex { LocationPoint = P(500, 500, 0), VertexFlags = 16 },
            new Cad2DVertex { LocationPoint = P(10, 0, 0), Bulge = 1 },
        ]);
        DrawingList list = Build(polyline);
        AssertBox(list, 0, 0, 10, 5);
    }

    [Fact]
    public void Constant_widths_of_old_polylines_hold_for_vertices_without_one()
    {
        var polyline = new CadPolyline { StartWidth = 4, EndWidth = 4 };
        polyline.Vertices.AddRange([new Cad2DVertex(), new Cad2DVertex { LocationPoint = P(10, 0, 0) }]);
        AssertBox(Build(polyline), 0, -2, 10, 2);
    }

    [Fact]
    public void Meshes_show_rows_and_columns_and_close_in_both_directions()
    {
        var mesh = new CadPolygonMesh
        {
            MeshMVertexCount = 2,
            MeshNVertexCount = 3,
            Flag = CadPolylineFlag.PolygonMesh | CadPolylineFlag.ClosedN
        };
        for (int i = 0; i < 6; i++)
        {
            mesh.Vertices.Add(new CadPolygonMeshVertex { LocationPoint = P(i % 3 * 10, i / 3 * 5, 0) });
        }

        Assert.Equal((2 * 40) + (3 * 5), Length(Build(mesh)), 9);
        mesh.MeshMVertexCount = 9;
        DrawingList broken = Build(mesh);
        Assert.True(broken.Items.IsEmpty);
        Assert.Single(broken.Skipped);
    }

    [Fact]
    public void Polyfaces_hide_the_edges_of_negative_indexes()
    {
        var mesh = new CadPolyFaceMesh();
        foreach ((double x, double y) in new[] { (0.0, 0.0), (10, 0), (10, 10), (0, 10) })
        {
            mesh.Vertices.Add(new CadVertexPolyFaceMesh { LocationPoint = P(x, y, 0), VertexFlags = 192 });
        }

        mesh.Vertices
            .Add(new CadFaceRecord
            {
                VertexIndex1 = 1,
                VertexIndex2 = -2,
                VertexIndex3 = 3,
                VertexIndex4 = 4,
                VertexFlags = 128
            });
        Assert.Equal(30, Length(Build(mesh)), 9);
        mesh.Vertices
            .Add(new CadFaceRecord { VertexIndex1 = 99, VertexIndex2 = 1, VertexFlags = 128 }); // an index of no vertex
        Assert.Equal(30, Length(Build(mesh)), 9);
    }

    [Fact]
    public void Faces_hide_their_invisible_edges()
    {
        var face = new Cad3DFace
        {
            FirstPoint = P(0, 0, 0),
            SecondPoint = P(10, 0, 0),
            ThirdPoint = P(10, 10, 5),
            FourthPoint = P(0, 10, 5)
        };
        Assert.Equal(40, Length(Build(face)), 9);
        face.InvisibleEdges = 5;
        Assert.Equal(20, Length(Build(face)), 9);
    }

    [Theory]
    [InlineData(0, 0)] // a dot
    [InlineData(2, 40)] // a plus of twice the size
    [InlineData(34, 40 + 31.416)] // and a circle
    [InlineData(67, 56.569 + 40)] // a cross of twice the size in a square
    public void Points_are_drawn_as_their_mode_says(int mode, double length)
    {
        CadImage drawing = TestPage.Drawing(new CadPoint());
        drawing.Header.PdMode = mode;
        drawing.Header.PdSize = 10;
        Assert.Equal(length, Length(Build(drawing)), 0.05);
    }

    [Fact]
    public void Rays_and_construction_lines_end_at_what_else_is_drawn()
    {
        DrawingList list = Build(
            new CadXLine { FirstPoint = P(50, 50, 0), UnitDirection = P(1, 0, 0) },
            new CadRay { FirstPoint = P(50, 50, 0), UnitDirection = P(0, -1, 0) },
            new CadLine { FirstPoint = P(0, 0, 0), SecondPoint = P(100, 100, 0) });
        AssertBox(list, 0, 0, 100, 100);
        Assert.Equal((100 * Math.Sqrt(2)) + 100 + 50, Length(list), 6);
    }

    [Fact]
    public void Rays_and_construction_lines_by_themselves_are_drawn_around_their_starts()
    {
        var ray = new CadRay { FirstPoint = P(500, 700, 0), UnitDirection = P(1, 0, 0) };
        var line = new CadXLine { FirstPoint = P(520, 700, 0), UnitDirection = P(0, 1, 0) };
        AssertBox(Build(ray), 500, 700, 501, 700);
        AssertBox(Build(ray, line), 500, 690, 530, 710);
        AssertBox(Build(line, new CadPoint { CenterPoint = P(520, 705, 0) }), 520, 704, 520, 706);
    }

    [Fact]
    public void Leaders_carry_a_head_unless_their_first_segment_is_too_short()
    {
        var leader = new CadLeader();
        leader.Coordinates.AddRange([P(0, 0, 0), P(10, 0, 0), P(12, 3, 0)]);
        Assert.Contains(Kinds(Build(leader)), k => k == DisplayKind.Fill);
        leader.Coordinates[1] = P(0.2, 0, 0);
        Assert.DoesNotContain(Kinds(Build(leader)), k => k == DisplayKind.Fill);
    }

    [Fact]
    public void Tolerance_frames_have_a_box_for_each_filled_cell()
    {
        DrawingList list = Build(new CadTolerance { VisualRepresentation = "{\\Fgdt;j}%%v0.5%%vA%%v%%v^J0.1" });
        Assert.Equal(5, Kinds(list).FindAll(k => k == DisplayKind.Stroke).Count); // one is that of the sign
        Assert.Equal(4, Kinds(list).FindAll(k => k == DisplayKind.Text).Count);
    }

    [Fact]
    public void Multilines_break_where_their_lengths_say()
    {
        var line = new CadMultiLine { StyleName = "DOUBLE", Flags = CadMultiLineFlag.HasVertices };
        foreach (double x in new[] { 0.0, 100 })
        {
            var vertex = new CadMultiLineVectorBlock
            {
                Location = P(x, 0, 0),
                Direction = P(1, 0, 0),
                Miter = P(0, 1, 0)
            };
            vertex.ElementParameters.Add([5, 0, 40, 60]);
            vertex.ElementParameters.Add([-5, 0]);
            line.Vertices.Add(vertex);
        }

        Assert.Equal(80 + 100, Length(Build(line)), 9);
        CadImage capped = TestPage.Drawing(line);
        var style = new CadMLineStyleObject { StyleName = "DOUBLE", Flags = 16 | 256 };
        style.Elements.AddRange([new CadMLineStyleElement { Offset = 5 }, new CadMLineStyleElement { Offset = -5 }]);
        capped.Objects.Add(style);
        Assert.Equal(180 + 20, Length(Build(capped)), 9);
    }

    [Fact]
    public void Splines_without_control_points_run_through_their_fit_points()
    {
        var spline = new CadSpline();
        spline.FitPoints.AddRange([P(0, 0, 0), P(10, 10, 0), P(20, 0, 0)]);
        DrawingList list = Build(spline);
        AssertBox(list, 0, 0, 20, 10, 1e-6);
        spline.FitPoints.Clear();
        Assert.Contains("SPLINE without a curve", Build(spline).Skipped.Keys);
    }

    [Fact]
    public void What_has_no_picture_is_counted()
    {
        CadImage drawing = TestPage.Drawing(new Cad3DSolid(), new Cad3DSolid(), TestPage.Insert("MISSING"),
            new CadRadialDimension { BlockName = "*D9" });
        DrawingList list = Build(drawing);
        Assert.Equal(2, list.Skipped["3DSOLID"]);
        Assert.Equal(1, list.Skipped["INSERT of a missing block"]);
        Assert.Equal(1, list.Skipped["DIMENSION without a figure"]);
    }

    [Fact]
    public void Dimensions_draw_their_block_where_it_stands()
    {
        CadImage drawing = TestPage.Drawing(new CadRotatedDimension { BlockName = "*D1", ColorId = 1 });
        TestPage.AddBlock(drawing, "*D1", new CadLine { SecondPoint = P(30, 0, 0), ColorId = 0 });
        DrawingList list = Build(drawing);
        AssertBox(list, 0, 0, 30, 0);
        Assert.Equal(new Rgba(255, 0, 0), list.Items[0].Color);
    }

    [Fact]
    public void Line_patterns_alternate_dash_and_gap_whatever_their_definition_looks_like()
    {
        Assert.Equal(
            [5, 2, 0.009, 2], LinePattern.Create([5, -2, 0, -2])!.Lengths, static (a, b) => Math.Abs(a - b) < 1e-12);
        Assert.Equal([3.0, 4], LinePattern.Create([1, 2, -3, -1])!.Lengths);
        Assert.Equal([3.0, 2], LinePattern.Create([-2, 3])!.Lengths); // opens with its gap
        Assert.Equal([3.0, 2], LinePattern.Create([1, -2, 2])!.Lengths); // ends in a dash
        Assert.Null(LinePattern.Create([]));
        Assert.Null(LinePattern.Create([-1, -2]));
        Assert.Null(LinePattern.Create([5]));
        Assert.Null(LinePattern.Create([double.NaN, -1]));
    }

    [Theory]
    [InlineData(4, false)] // shorter than a period: continuous
    [InlineData(40, true)]
    public void Dashes_need_room_for_a_period(double length, bool dashed)
    {
        var line = new CadLine { SecondPoint = P(length, 0, 0), LineTypeName = "D" };
        CadImage drawing = TestPage.Drawing(line);
        var type = new CadLineTypeTableObject { Name = "D" };
        type.Pattern.AddRange([3, -2]);
        drawing.LineTypes.Add(type);
        Assert.Equal(dashed, Build(drawing).Items[0].Dash >= 0);
    }

    [Theory]
    [InlineData(0, 255)]
    [InlineData(0x02000080, 128)]
    [InlineData(0x01000000, 255)] // by block, outside of any
    public void Transparency_becomes_opacity(int transparency, int alpha)
    {
        DrawingList list = Build(new CadLine { SecondPoint = P(1, 0, 0), Transparency = transparency });
        Assert.Equal(alpha, list.Items[0].Color.A);
    }

    [Fact]
    public void Colours_that_are_true_go_before_indexed_ones_and_off_layers_keep_theirs()
    {
        CadImage drawing = TestPage
            .Drawing(new CadLine { SecondPoint = P(1, 0, 0), ColorId = 1, ColorValue = 0x123456 });
        Assert.Equal(new Rgba(0x12, 0x34, 0x56), Build(drawing).Items[0].Color);
        Assert.Equal(new Rgba(0, 255, 255), AciPalette.Color(4, Rgba.White));
    }
}
