using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>What newer entities become in releases that do not have them.</summary>
public class ReleaseConversionTests
{
    [Fact]
    public void Light_polylines_keep_bulges_widths_and_planes()
    {
        CadLwPolyline source = new()
        {
            Flag = CadLwPolylineFlag.Closed | CadLwPolylineFlag.Plinegen,
            Elevation = 7,
            Thickness = 2,
            ExtrusionDirection = new Cad3DPoint(0, 0, -1),
            LayerName = "WALLS",
            ColorId = 3,
        };
        source.Coordinates.AddRange([new(1, 2), new(3, 4), new(5, 9)]);
        source.Bulges.AddRange([0, 0.5, -1]);
        source.StartWidths.AddRange([0.1, 0.2, 0.3]);
        source.EndWidths.AddRange([0.4, 0.5, 0.6]);
        CadPolyline polyline = Assert.IsType<CadPolyline>(Assert.Single(InRelease12(source).Made));
        Assert.Equal((CadPolylineFlag.Closed | CadPolylineFlag.Plinegen, 2.0), (polyline.Flag, polyline.Thickness));
        Assert.Equal((7.0, -1.0), (polyline.Elevation.Z, polyline.ExtrusionDirection.Z));
        Assert.Equal(("WALLS", 3), (polyline.LayerName, polyline.ColorId));
        Assert.Equal([0, 0.5, -1], polyline.Vertices.Select(static vertex => vertex.Bulge));
        Assert.Equal([(1.0, 0.1, 0.4), (3, 0.2, 0.5), (5, 0.3, 0.6)], polyline.Vertices.Select(
            static vertex => (vertex.LocationPoint.X, vertex.StartWidth, vertex.EndWidth)));
        Assert.All(polyline.Vertices, static vertex => Assert.Equal("WALLS", vertex.LayerName));
    }

    [Theory]
    [InlineData(0, Math.Tau, true)]
    [InlineData(1, 3, false)]
    [InlineData(5, 1, false)] // across the zero of the angle
    public void Ellipses_are_flattened_within_their_tolerance(double start, double end, bool closed)
    {
        CadEllipse ellipse = new()
        {
            CenterPoint = new Cad3DPoint(100, 50, 3),
            MajorEndPoint = new Cad3DPoint(0, 20, 0),
            AxisRatio = 0.25,
            StartAngle = start,
            EndAngle = end,
        };
        CadPolyline made = Assert.IsType<CadPolyline>(Assert.Single(InRelease12(ellipse).Made));
        Assert.Equal(closed, made.IsClosed);
        Cad3DPoint[] points = [.. made.Vertices.Select(static vertex => vertex.LocationPoint)];
        Assert.All(points, static point => Assert.Equal(3, point.Z));
        for (int i = 0; i + 1 < points.Length; i++)
        {
            // The middle of a segment is where it is farthest from the curve.
            (double x, double y) = ((points[i].X + points[i + 1].X) / 2, (points[i].Y + points[i + 1].Y) / 2);
            double across = Math.Abs(Math.Sqrt(Math.Pow((x - 100) / 5, 2) + Math.Pow((y - 50) / 20, 2)) - 1) * 20;
            Assert.InRange(across, 0, 50 * 1e-4);
        }

        Cad3DPoint At(double t) => new(100 - (5 * Math.Sin(t)), 50 + (20 * Math.Cos(t)), 3);
        Assert.InRange(Distance(points[0], At(start)), 0, 1e-9);
        Assert.True(closed || Distance(points[^1], At(end)) < 1e-9);
    }

    [Fact]
    public void Splines_in_space_become_polylines_in_space()
    {
        CadSpline spline = new() { Degree = 3 };
        spline.KnotValues.AddRange([0, 0, 0, 0, 1, 1, 1, 1]);
        spline.ControlPoints.AddRange([new(0, 0, 0), new(0, 10, 10), new(10, 10, 10), new(10, 0, 20)]);
        CadPolyline3D made = Assert.IsType<CadPolyline3D>(Assert.Single(InRelease12(spline).Made));
        Assert.True(made.Vertices.Count > 10);
        Assert.True(made.Vertices[0].LocationPoint.Is(0, 0, 0) && made.Vertices[^1].LocationPoint.Is(10, 0, 20));
        Cad3DPoint middle = new(5, 7.5, 10);
        Assert.Contains(made.Vertices, vertex => Distance(vertex.LocationPoint, middle) < 0.5);
        Assert.IsType<CadSpline>(Assert.Single(Made(DxfOutputVersion.R2000, spline).Made));
    }

    [Fact]
    public void Paragraphs_become_lines_of_text_in_their_places()
    {
        CadMText text = new()
        {
            Text = @"{\fArial|b1;Title}\Pcost 5\~%%d \{x\}\P\Plast",
            InitialTextHeight = 3,
            AttachmentPoint = CadAttachmentPoint.BottomRight,
            InsertionPoint = new Cad3DPoint(10, 20, 5),
            TextRotation = 90,
            TextStyleName = "Notes",
        };
        CadText[] lines = [.. InRelease12(text).Made.Cast<CadText>()];
        Assert.Equal(["Title", "cost 5 %%d {x}", "last"], lines.Select(static line => line.DefaultValue));
        Assert.All(lines, static line => Assert.Equal((3.0, "NOTES", (short)2, 90.0), (line.TextHeight, line.StyleType,
            line.HorizontalAlignment, Math.Round(line.TextRotation, 9))));

        // Rotated by a quarter, lines go to the right; the empty one keeps its room. The last stands on the point.
        Assert.Equal([-5.0, 0, 10], lines.Select(static line => Math.Round(line.SecondAlignment.X, 9)));
        Assert.All(lines, static line => Assert.Equal(20, line.SecondAlignment.Y, 9));
        Assert.All(lines, static line => Assert.Equal(5, line.SecondAlignment.Z));
    }

    [Fact]
    public void Paragraphs_are_wrapped_at_their_width()
    {
        CadMText text = new() { Text = "aaaa bbbb cccc dddd", InitialTextHeight = 1, ReferenceRectangleWidth = 8.5 };
        Assert.Equal(["aaaa bbbb", "cccc dddd"], InRelease12(text).Made.Cast<CadText>().Select(
            static line => line.DefaultValue));
    }

    [Theory]
    [InlineData(true, 84)]
    [InlineData(false, 0)]
    public void Hatches_become_blocks_of_what_fills_them(bool solid, double area)
    {
        CadHatch hatch = new() { SolidFillFlag = (short)(solid ? 1 : 0), ElevationPoint = new Cad3DPoint(0, 0, 4) };
        hatch.BoundaryPaths.Add(Square(0, 10));
        hatch.BoundaryPaths.Add(Square(3, 4));
        hatch.PatternDefinitions.Add(new CadHatchPatternData { LineOffset = new(0, 1), LineBasePoint = new(0, 0.5) });
        DxfImage image = new();
        image.AddEntity(hatch);
        (DxfImage again, IReadOnlyList<string> changes) = ReleaseTests.Converted(image, DxfOutputVersion.R12);
        CadInsertObject insert = Assert.IsType<CadInsertObject>(Assert.Single(again.Entities));
        IList<CadEntityBase> content = again.BlockEntities[insert.Name].Entities;
        Assert.StartsWith("*X", insert.Name, StringComparison.Ordinal);
        Assert.Contains("HATCH: written as INSERT", changes);
        if (solid)
        {
            Assert.Equal(area, content.Cast<CadSolid>().Sum(AreaOf), 9);
            Assert.All(content.Cast<CadSolid>(), static part => Assert.Equal(4, part.FirstPoint.Z));
            return;
        }

        // Ten lines, of which four are broken by the hole.
        Assert.Equal(14, content.Count);
        Assert.Equal(84, content.Cast<CadLine>().Sum(static line => Distance(line.FirstPoint, line.SecondPoint)), 9);
    }

    [Fact]
    public void Lines_without_ends_reach_across_the_drawing()
    {
        (List<CadEntityBase> made, _) = InRelease12(
            new CadLine { SecondPoint = new Cad3DPoint(100, 0, 0) },
            new CadXLine { FirstPoint = new Cad3DPoint(50, 10, 0), UnitDirection = new Cad3DPoint(1, 0, 0) },
            new CadRay { FirstPoint = new Cad3DPoint(50, 10, 0), UnitDirection = new Cad3DPoint(0, 1, 0) });
        (CadLine both, CadLine one) = ((CadLine)made[1], (CadLine)made[2]);
        Assert.True(both.FirstPoint.X < 0 && both.SecondPoint.X > 100 && both.FirstPoint.Y == 10);
        Assert.True(one.FirstPoint.Is(50, 10, 0) && one.SecondPoint.Y > 100);
    }

    [Fact]
    public void Meshes_become_polyface_meshes_whose_large_faces_hide_their_inner_edges()
    {
        CadMesh mesh = new();
        mesh.Vertices.AddRange([new(0, 0, 0), new(4, 0, 0), new(6, 3, 0), new(3, 6, 0), new(0, 4, 1)]);
        mesh.FaceList.AddRange([5, 0, 1, 2, 3, 4, 3, 0, 1, 4]);
        CadPolyFaceMesh made = Assert.IsType<CadPolyFaceMesh>(Assert.Single(Made(DxfOutputVersion.R2007, mesh).Made));
        Assert.Equal((5, 4), (made.MeshMVertexCount, made.MeshNVertexCount));
        Assert.Equal(
            [(1, 2, -3), (-1, 3, -4), (-1, 4, 5), (1, 2, 5)],
            made.Vertices.OfType<CadFaceRecord>().Select(
                static face => ((int)face.VertexIndex1, (int)face.VertexIndex2, (int)face.VertexIndex3)));
    }

    [Fact]
    public void Leaders_become_lines_with_filled_tips()
    {
        CadLeader leader = new();
        leader.Coordinates.AddRange([new(0, 0, 0), new(10, 0, 0), new(10, 5, 0)]);
        CadMLeader multi = new();
        multi.ContextData.ArrowheadSize = 2;
        (multi.ContextData.HasText, multi.ContextData.Text) = (true, "note");
        CadMLeaderLine line = new();
        line.Vertices.Add(new Cad3DPoint(0, 0, 0));
        CadMLeaderNode node = new() { LastLeaderLinePoint = new Cad3DPoint(20, 0, 0), DoglegLength = 0 };
        node.LeaderLines.Add(line);
        multi.ContextData.LeaderNodes.Add(node);
        Assert.Equal(["SOLID", "POLYLINE"], InRelease12(leader).Made.Select(static one => one.TypeNameText));
        Assert.Equal(["SOLID", "POLYLINE", "TEXT"], InRelease12(multi).Made.Select(static one => one.TypeNameText));
        List<CadEntityBase> later = Made(DxfOutputVersion.R2004, multi).Made;
        Assert.Equal(["SOLID", "POLYLINE", "MTEXT"], later.Select(static one => one.TypeNameText));
        CadSolid tip = (CadSolid)InRelease12(multi).Made[0];
        Assert.True(tip.FirstPoint.Is(0, 0, 0));
        Assert.Equal(2.0 * 2 / 6, AreaOf(tip), 9);
    }

    [Fact]
    public void What_has_no_equivalent_is_left_out_and_listed()
    {
        (List<CadEntityBase> made, IReadOnlyList<string> changes) = InRelease12(
            new Cad3DSolid(), new CadPoint(), new CadPoint { Visible = 1 }, new CadRegion());
        Assert.Single(made);
        string[] left = ["3DSOLID: left out", "REGION: left out", "POINT that is invisible: left out"];
        Assert.Equal(left, changes.Intersect(left).OrderBy(change => Array.IndexOf(left, change)));
    }

    [Fact]
    public void What_an_export_lost_is_told_in_its_result()
    {
        DxfImage image = new();
        image.AddEntity(new CadSpline { Degree = 1, ControlPoints = { new(0, 0, 0), new(1, 1, 0) } });
        image.AddEntity(new Cad3DSolid());
        DxfOptions options = new() { Version = DxfOutputVersion.R12 };
        image.Save(new System.IO.MemoryStream(), options);
        string[] messages = [.. options.RenderResult!.Failures.Select(static failure => failure.Message)];
        Assert.Contains("SPLINE: written as POLYLINE (1)", messages);
        Assert.Contains("3DSOLID: left out (1)", messages);
        Assert.Equal(["SPLINE", "3DSOLID"], image.Entities.Select(static one => one.TypeNameText));
    }

    private static (List<CadEntityBase> Made, IReadOnlyList<string> Changes) InRelease12(
        params CadEntityBase[] entities) => Made(DxfOutputVersion.R12, entities);

    private static (List<CadEntityBase> Made, IReadOnlyList<string> Changes) Made(
        DxfOutputVersion target, params CadEntityBase[] entities)
    {
        DxfImage image = new();
        image.Styles.Add(new CadStyleTableObject { Name = "Notes" });
        foreach (CadEntityBase entity in entities)
        {
            image.AddEntity(entity.Clone());
        }

        (DxfImage again, IReadOnlyList<string> changes) = ReleaseTests.Converted(image, target);
        return ([.. again.Entities], changes);
    }

    private static CadHatchBoundaryPathContainer Square(double from, double size)
    {
        CadPolylineBoundaryPath path = new();
        double to = from + size;
        path.Vertices.AddRange([new(from, from), new(to, from), new(to, to), new(from, to)]);
        return new CadHatchBoundaryPathContainer(path);
    }

    private static double Distance(Cad3DPoint a, Cad3DPoint b) =>
        Math.Sqrt(Math.Pow(a.X - b.X, 2) + Math.Pow(a.Y - b.Y, 2) + Math.Pow(a.Z - b.Z, 2));

    private static double AreaOf(CadSolid part) => Math.Abs(
        ((part.SecondPoint.X - part.FirstPoint.X) * (part.ThirdPoint.Y - part.FirstPoint.Y))
        - ((part.ThirdPoint.X - part.FirstPoint.X) * (part.SecondPoint.Y - part.FirstPoint.Y))) / 2;
}
