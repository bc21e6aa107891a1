using System;
using System.Linq;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Lengths, areas and middles of entities against formulas, and outlines of hatches by their edges.</summary>
public class MeasureTests
{
    private const double HalfEllipse = 4.844224110273838; // of the half axes 2 and 1, by its complete integral

    /// <summary>Why the measures are these, the entity, its length and its area.</summary>
    public static readonly TheoryData<string, CadEntityBase, double?, double?> Measures = new()
    {
        { "a line in space", new CadLine { FirstPoint = new(1, 2, 3), SecondPoint = new(3, 5, 9) }, 7, null },
        { "thickness is no length", new CadLine { SecondPoint = new(5, 0, 0), Thickness = 9 }, 5, null },
        { "a circle", new CadCircle { Radius = 2 }, 4 * Math.PI, 4 * Math.PI },
        { "a tilted one", new CadCircle { Radius = 2, ExtrusionDirection = new(1, 1, 1) }, 4 * Math.PI, 4 * Math.PI },
        { "an arc over 0", new CadArc { Radius = 3, StartAngle = 300, EndAngle = 60 }, 2 * Math.PI, null },
        { "an ellipse", Ellipse(0, Math.Tau), 2 * HalfEllipse, 2 * Math.PI },
        { "half of one", Ellipse(0, Math.PI), HalfEllipse, null },
        { "a quarter over the end", Ellipse(1.5 * Math.PI, 0), HalfEllipse / 2, null },
        { "a spline of one span is its cubic", Spline(), 2, null },
        { "an open polyline", Polyline(false), 7, null },
        { "a closed polyline", Polyline(true), 12, 6 },
        { "a closed one in space", Polyline3D(true), 4 * Math.Sqrt(2), null },
        { "an open one in space", Polyline3D(false), 3 * Math.Sqrt(2), null },
        { "a solid", new CadSolid
            { SecondPoint = new(4, 0, 0), ThirdPoint = new(0, 3, 0), FourthPoint = new(4, 3, 0) }, 14, 12 },
        { "a triangular face", new Cad3DFace
            { SecondPoint = new(3, 0, 0), ThirdPoint = new(3, 0, 4), FourthPoint = new(3, 0, 4) }, 12, 6 },
        { "a point", new CadPoint(), null, null },
        { "a text", new CadText { DefaultValue = "x" }, null, null },
        { "a reference", new CadInsertObject { Name = "B" }, null, null },
        { "a spline without a curve", new CadSpline(), null, null },
    };

    [Theory]
    [MemberData(nameof(Measures))]
    public void Entities_have_the_length_and_area_of_geometry(
        string why, CadEntityBase entity, double? length, double? area)
    {
        AssertNear(why, length, entity.GetLength());
        AssertNear(why, area, entity.GetArea());
    }

    [Fact]
    public void Annotated_entities_have_a_middle_unless_they_have_no_place()
    {
        CadImage drawing = new();
        var line = new CadLine { FirstPoint = new(2, 0, 0), SecondPoint = new(4, 6, 2) };
        var empty = new CadLwPolyline();
        drawing.AddEntity(line);
        drawing.AddEntity(empty);
        var middle = line.GetAnnotationPoint();
        Assert.Equal((3.0, 3.0, 1.0), (middle.X, middle.Y, middle.Z));
        Assert.Contains("LWPOLYLINE", Assert.Throws<CadException>(() => empty.GetAnnotationPoint()).Message);
    }

    /// <summary>The edge, its ends, and a place between them that its outline reaches.</summary>
    public static readonly TheoryData<string, ICadBoundaryPathEntity, double[]> Edges = new()
    {
        { "a line", new CadBoundaryPathLine { FirstPoint = new(1, 2), SecondPoint = new(3, 4) }, [1, 2, 3, 4, 2, 3] },
        { "an arc", new CadBoundaryPathCircularArc { Radius = 2, StartAngle = 0, EndAngle = 90 },
            [2, 0, 0, 2, Math.Sqrt(2), Math.Sqrt(2)] },
        { "a clockwise arc", new CadBoundaryPathCircularArc
            { Radius = 2, StartAngle = 0, EndAngle = 90, CounterClockwise = false },
            [2, 0, 0, -2, Math.Sqrt(2), -Math.Sqrt(2)] },
        { "an elliptic arc", new CadBoundaryPathCircularEllipse
            { MajorEndPoint = new(0, 4), AxisRatio = 0.5, StartAngle = 0, EndAngle = 180 }, [0, 4, 0, -4, -2, 0] },
        { "a clockwise one", new CadBoundaryPathCircularEllipse
            { MajorEndPoint = new(4, 0), AxisRatio = 0.5, StartAngle = 90, EndAngle = 180, CounterClockwise = false },
            [0, -2, -4, 0, -4 * Math.Sqrt(0.5), -2 * Math.Sqrt(0.5)] },
        { "one between directions", new CadBoundaryPathCircularEllipse
            { MajorEndPoint = new(4, 0), AxisRatio = 0.5, StartAngle = 45, EndAngle = 135, CounterClockwise = true },
            [Math.Sqrt(3.2), Math.Sqrt(3.2), -Math.Sqrt(3.2), Math.Sqrt(3.2), 0, 2] },
        { "a spline", SplineEdge(rational: false), [0, 0, 4, 0, 2, 1] },
        { "a rational spline", SplineEdge(rational: true), [0, 0, 4, 0, 2, 1.5] },
    };

    [Theory]
    [MemberData(nameof(Edges))]
    public void Edges_of_hatches_run_from_end_to_end(string why, ICadBoundaryPathEntity edge, double[] points)
    {
        var boundary = new CadEdgeBoundaryPath();
        boundary.Edges.Add(edge);
        var path = new PathBuffer();
        EntityGeometry.EmitBoundary(new CadHatchBoundaryPathContainer(boundary), Affine3.Identity, 0,
            new OutlineSink(path, Affine3.Identity));
        Vec2[] found = FlatLine.Of(path, 1e-5).Single().Points;
        AssertAt(why, points[0], points[1], found[0]);
        AssertAt(why, points[2], points[3], found[^1]);
        Vec2 place = new(points[4], points[5]);
        double off = found.Zip(found.Skip(1)).Min(pair => Distance(place, pair.First, pair.Second));
        Assert.True(off < 1e-3, $"{why}: {off} off {place}");

        var hatch = new CadHatch();
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(boundary));
        var extents = new Extents();
        EntityExtents.Add(hatch, extents);
        Assert.Equal(found.Min(p => p.X), extents.Min.X, 1e-3);
        Assert.Equal(found.Max(p => p.Y), extents.Max.Y, 1e-3);
    }

    [Fact]
    public void Fit_points_and_tangents_of_a_spline_edge_are_saved_in_releases_that_have_them()
    {
        CadBoundaryPathSpline spline = SplineEdge(rational: true);
        spline.FitPoints.AddRange([new(0, 0), new(2, 1.5), new(4, 0)]);
        (spline.StartTangent, spline.EndTangent) = (new(1, 2), new(3, -4));
        var boundary = new CadEdgeBoundaryPath();
        boundary.Edges.Add(spline);
        CadImage drawing = new();
        var hatch = new CadHatch();
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(boundary));
        drawing.AddEntity(hatch);
        foreach ((CadAcadVersion version, int fit) in new[] { (CadAcadVersion.AC1024, 3), (CadAcadVersion.AC1015, 0) })
        {
            drawing.Header.AcadVersion = version;
            var again = (CadHatch)DxfText.Reload(drawing).Entities[0];
            var read = (CadBoundaryPathSpline)((CadEdgeBoundaryPath)again.BoundaryPaths[0].BoundaryPath).Edges[0];
            Assert.Equal(fit, read.FitPoints.Count);
            Assert.Equal(fit > 0 ? (1, 2, 3, -4) : (0, 0, 0, 0),
                (read.StartTangent.X, read.StartTangent.Y, read.EndTangent.X, read.EndTangent.Y));
            Assert.Equal(spline.Weights, read.Weights);
            Assert.Equal(spline.KnotValues, read.KnotValues);
        }
    }

    private static CadEllipse Ellipse(double start, double end) => new()
    {
        MajorEndPoint = new(0, 2, 0),
        AxisRatio = 0.5,
        StartAngle = start,
        EndAngle = end,
    };

    private static CadSpline Spline()
    {
        // All points on a line, so that the length is that of the chord.
        var spline = new CadSpline { Degree = 3 };
        spline.KnotValues.AddRange([0, 0, 0, 0, 1, 1, 1, 1]);
        spline.ControlPoints.AddRange([new(0, 0, 0), new(0, 0.1, 0), new(0, 1.5, 0), new(0, 2, 0)]);
        return spline;
    }

    private static CadLwPolyline Polyline(bool closed)
    {
        var polyline = new CadLwPolyline { Flag = closed ? CadLwPolylineFlag.Closed : CadLwPolylineFlag.None };
        polyline.Coordinates.AddRange([new(0, 0), new(3, 0), new(3, 4)]);
        return polyline;
    }

    private static CadPolyline3D Polyline3D(bool closed)
    {
        var polyline = new CadPolyline3D
        {
            Flag = CadPolylineFlag.Polyline3D | (closed ? CadPolylineFlag.Closed : CadPolylineFlag.None),
        };
        foreach ((double x, double y, double z) in new[] { (0.0, 0.0, 0.0), (1, 0, 1), (1, 1, 2), (0, 1, 1) })
        {
            polyline.Vertices.Add(new Cad3DVertex { LocationPoint = new(x, y, z), VertexFlags = 32 });
        }

        return polyline;
    }

    private static CadBoundaryPathSpline SplineEdge(bool rational)
    {
        var spline = new CadBoundaryPathSpline { Degree = 2, Rational = rational };
        spline.KnotValues.AddRange([0, 0, 0, 1, 1, 1]);
        spline.ControlPoints.AddRange([new(0, 0), new(2, 2), new(4, 0)]);
        spline.Weights.AddRange(rational ? [1.0, 3, 1] : []);
        return spline;
    }

    private static double Distance(Vec2 p, Vec2 a, Vec2 b)
    {
        double length = (b - a).Length;
        double t = length > 0 ? Math.Clamp(Vec2.Dot(p - a, b - a) / (length * length), 0, 1) : 0;
        return (Vec2.Lerp(a, b, t) - p).Length;
    }

    private static void AssertAt(string why, double x, double y, Vec2 actual) =>
        Assert.True((new Vec2(x, y) - actual).Length < 1e-6, $"{why}: {actual}");

    private static void AssertNear(string why, double? expected, double? actual) =>
        Assert.True(expected is double value ? Math.Abs(value - actual.GetValueOrDefault()) < 1e-6 : actual is null,
            $"{why}: {actual}");
}
