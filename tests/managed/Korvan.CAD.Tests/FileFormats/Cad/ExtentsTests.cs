using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Boxes computed by hand: the space that each kind of entity takes in the world.</summary>
public class ExtentsTests
{
    private static readonly double Root2 = Math.Sqrt(2);

    public static readonly TheoryData<string, CadEntityBase, double[]> Flat = new()
    {
        { "a whole circle", new CadCircle { CenterPoint = P(1, 2), Radius = 3 }, [-2, -1, 4, 5] },
        { "a circle seen from below",
            new CadCircle { CenterPoint = P(1, 2), Radius = 3, ExtrusionDirection = P(0, 0, -1) }, [-4, -1, 2, 5] },
        { "an arc across the right", new CadArc { Radius = 2, StartAngle = 315, EndAngle = 45 },
            [Root2, -Root2, 2, Root2] },
        { "an arc within a quarter", new CadArc { Radius = 2, StartAngle = 45, EndAngle = 80 },
            [2 * Math.Cos(80 * Math.PI / 180), Root2, Root2, 2 * Math.Sin(80 * Math.PI / 180)] },
        { "an arc by angles beyond a turn", new CadArc { Radius = 2, StartAngle = 720, EndAngle = 90 }, [0, 0, 2, 2] },
        { "an arc whose end is turns ahead", new CadArc { Radius = 2, StartAngle = 0, EndAngle = 450 }, [0, 0, 2, 2] },
        { "an arc of equal angles", new CadArc { Radius = 2, StartAngle = 30, EndAngle = 30 }, [-2, -2, 2, 2] },
        { "a whole ellipse, turned", new CadEllipse { MajorEndPoint = P(3, 3), AxisRatio = 0.5 },
            [-3 * Math.Sqrt(1.25), -3 * Math.Sqrt(1.25), 3 * Math.Sqrt(1.25), 3 * Math.Sqrt(1.25)] },
        { "a quarter of an ellipse",
            new CadEllipse { MajorEndPoint = P(4, 0), AxisRatio = 0.5, StartAngle = 0, EndAngle = Math.PI / 2 },
                [0, 0, 4, 2] },
        { "an ellipse by odd ends", new CadEllipse { MajorEndPoint = P(1, 0), StartAngle = 1, EndAngle = 1 + Math.PI },
            [-1, -Math.Sin(1), Math.Cos(1), 1] },
        { "a polyline of half circles", Light([(0, 0, 1), (4, 0, -1), (8, 0, 0)]), [0, -2, 8, 2] },
        { "a polyline of a bulge below a quarter", Light([(0, 0, Math.Tan(Math.PI / 8)), (1, 1, 0)]), [0, 0, 1, 1] },
        { "a polyline that closes with a bulge", Light([(0, 0, 0), (4, 0, 1)], closed: true), [0, 0, 4, 2] },
        { "an open polyline whose last bulge is nobody's", Light([(0, 0, 0), (4, 0, 1)]), [0, 0, 4, 0] },
        { "an old polyline with the frame of its spline", Framed(), [0, 0, 10, 0] },
        { "a spline below its handles", Spline(), [0, 0, 3, 1.5] },
        { "a solid seen from below",
            new CadSolid { FirstPoint = P(1, 0), SecondPoint = P(2, 0), ThirdPoint = P(1, 1), FourthPoint = P(2, 1),
                ExtrusionDirection = P(0, 0, -1) }, [-2, 0, -1, 1] },
        { "a wipeout on skew axes",
            new CadWipeout { InsertionPoint = P(1, 1), VectorU = P(2, 1), VectorV = P(-1, 2), ImageSize = new(1, 1) },
                [0, 1, 3, 4] },
        { "a leader", Leader(P(1, 5), P(-2, 3)), [-2, 3, 1, 5] },
        { "a hatch within two half circles", Hatch(HalfCircles()), [-2, -2, 2, 2] },
        { "a hatch within an arc and its chord", Hatch(Edges(
            new CadBoundaryPathCircularArc { CenterPoint = new(0, 0), Radius = 2, StartAngle = 0, EndAngle = 180 },
            new CadBoundaryPathLine { FirstPoint = new(-2, 0), SecondPoint = new(2, 0) })), [-2, 0, 2, 2] },
        { "a hatch within an arc that runs clockwise", Hatch(Edges(
            new CadBoundaryPathCircularArc { CenterPoint = new(0, 0), Radius = 2, StartAngle = 0, EndAngle = 180,
                CounterClockwise = false },
            new CadBoundaryPathLine { FirstPoint = new(-2, 0), SecondPoint = new(2, 0) })), [-2, -2, 2, 0] },
        { "a hatch within an ellipse",
            Hatch(Edges(new CadBoundaryPathCircularEllipse { MajorEndPoint = new(4, 0), AxisRatio = 0.5 })),
                [-4, -2, 4, 2] },
    };

    [Theory]
    [MemberData(nameof(Flat))]
    public void Entities_take_the_box_of_what_is_drawn(string why, CadEntityBase entity, double[] box)
    {
        CadImage image = new();
        image.AddEntity(entity);
        double[] found = [image.MinPoint.X, image.MinPoint.Y, image.MaxPoint.X, image.MaxPoint.Y];
        Assert.True(box.Zip(found).All(pair => Math.Abs(pair.First - pair.Second) < 1e-6),
            $"{why}: {string.Join(", ", found)} instead of {string.Join(", ", box)}");
    }

    [Theory]
    [InlineData(1, 1, 0, 10, 20, 12, 21)]
    [InlineData(-1, 1, 0, 8, 20, 10, 21)] // mirrored
    [InlineData(2, 3, 90, 7, 20, 10, 24)]
    [InlineData(1, 1, 180, 8, 19, 10, 20)]
    [InlineData(0.5, -2, 0, 10, 18, 11, 20)]
    public void References_scale_and_turn_their_block(double scaleX, double scaleY, double rotation, double minX,
        double minY, double maxX, double maxY)
    {
        CadImage image = WithBlock();
        image.AddEntity(new CadInsertObject
        {
            Name = "B",
            InsertionPoint = P(10, 20),
            ScaleX = scaleX,
            ScaleY = scaleY,
            RotationAngle = rotation
        });
        AssertBox(image, minX, minY, maxX, maxY);
    }

    [Fact]
    public void References_repeat_nest_and_are_seen_from_below()
    {
        CadImage image = WithBlock();
        image.AddEntity(new CadInsertObject
        {
            Name = "b",
            ColumnCount = 3,
            RowCount = 2,
            ColumnSpacing = 10,
            RowSpacing = -5
        });
        AssertBox(image, 0, -5, 22, 1);

        CadImage nested = WithBlock();
        CadBlockEntity outer = new() { Name = "OUTER", BasePoint = P(1, 1) };
        outer.Entities.Add(new CadInsertObject { Name = "B", InsertionPoint = P(5, 5), ScaleX = 2 });
        nested.BlockEntities.Add(outer);
        nested.AddEntity(new CadInsertObject { Name = "OUTER", RotationAngle = 90 });
        AssertBox(nested, -5, 4, -4, 8);

        CadImage below = WithBlock();
        below.AddEntity(new CadInsertObject { Name = "B", InsertionPoint = P(3, 0), ExtrusionDirection = P(0, 0, -1) });
        AssertBox(below, -5, 0, -3, 1);

        CadImage missing = new();
        missing.AddEntity(new CadInsertObject { Name = "NONE", InsertionPoint = P(3, 3) });
        AssertBox(missing, 0, 0, 0, 0);
    }

    [Fact]
    public void Turned_references_are_as_small_as_what_they_show()
    {
        // A diagonal that is turned to lie flat; its box, turned, would be twice as high.
        CadImage image = new();
        CadBlockEntity block = new() { Name = "D" };
        block.Entities.Add(new CadLine { SecondPoint = P(10, 10) });
        block.Entities.Add(new CadCircle { CenterPoint = P(5, 5), Radius = 1 });
        image.BlockEntities.Add(block);
        image.AddEntity(new CadInsertObject { Name = "D", RotationAngle = -45 });
        AssertBox(image, 0, -1, 10 * Root2, 1);
    }

    [Fact]
    public void Heights_count_as_depth_and_sizes_are_rounded_up()
    {
        CadImage image = new();
        image.AddEntity(new CadLine { FirstPoint = P(0.2, 0, -1), SecondPoint = P(3.3, 0.1, 4.5) });
        Assert.Equal((4, 1, 6), (image.Width, image.Height, image.Depth));
        Assert.Equal(new Rectangle(0, 0, 4, 1), image.Bounds);
        image.AddEntity(new CadLine { SecondPoint = P(1e300, 0) });
        Assert.Equal(int.MaxValue, image.Width);
    }

    [Fact]
    public void Lines_without_end_and_other_sheets_do_not_count()
    {
        CadImage image = new();
        image.AddEntity(new CadXLine { FirstPoint = P(500, 500) });
        image.AddEntity(new CadRay { FirstPoint = P(-500, 500) });
        image.PaperSpaceEntities.Add(new CadLine { SecondPoint = P(900, 900) });
        image.AddEntity(new CadPoint { CenterPoint = P(1, 2) });
        AssertBox(image, 1, 2, 1, 2);
        Assert.True(image.RemoveEntity(image.Entities[2]));
        AssertBox(image, 0, 0, 0, 0);
    }

    private static void AssertBox(CadImage image, double minX, double minY, double maxX, double maxY)
    {
        Assert.Equal(minX, image.MinPoint.X, 6);
        Assert.Equal(minY, image.MinPoint.Y, 6);
        Assert.Equal(maxX, image.MaxPoint.X, 6);
        Assert.Equal(maxY, image.MaxPoint.Y, 6);
    }

    private static Cad3DPoint P(double x, double y, double z = 0) => new(x, y, z);

    // Two wide, one high.
    private static CadImage WithBlock()
    {
        CadImage image = new();
        CadBlockEntity block = new() { Name = "B" };
        block.Entities.Add(new CadLine { SecondPoint = P(2, 1) });
        image.BlockEntities.Add(block);
        return image;
    }

    private static CadLwPolyline Light((double X, double Y, double Bulge)[] vertices, bool closed = false)
    {
        CadLwPolyline line = new() { Flag = closed ? CadLwPolylineFlag.Closed : 0 };
        line.Coordinates.AddRange(vertices.Select(vertex => new Cad2DPoint(vertex.X, vertex.Y)));
        line.Bulges.AddRange(vertices.Select(vertex => vertex.Bulge));
        return line;
    }

    private static CadPolyline Framed()
    {
        CadPolyline line = new() { Flag = CadPolylineFlag.SplineFit };
        line.Vertices.Add(new Cad2DVertex());
        line.Vertices.Add(new Cad2DVertex { LocationPoint = P(500, 500), VertexFlags = 16 });
        line.Vertices.Add(new Cad2DVertex { LocationPoint = P(10, 0) });
        return line;
    }

    private static CadSpline Spline()
    {
        CadSpline spline = new();
        spline.KnotValues.AddRange([0, 0, 0, 0, 1, 1, 1, 1]);
        spline.ControlPoints.AddRange([P(0, 0), P(1, 2), P(2, 2), P(3, 0)]);
        return spline;
    }

    private static CadLeader Leader(params Cad3DPoint[] points)
    {
        CadLeader leader = new();
        leader.Coordinates.AddRange(points);
        return leader;
    }

    private static CadHatch Hatch(ICadBoundaryPath path)
    {
        CadHatch hatch = new();
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(path));
        return hatch;
    }

    private static CadPolylineBoundaryPath HalfCircles()
    {
        CadPolylineBoundaryPath path = new();
        path.Vertices.AddRange([new(-2, 0), new(2, 0)]);
        path.Bulges.AddRange([1, 1]);
        return path;
    }

    private static CadEdgeBoundaryPath Edges(params ICadBoundaryPathEntity[] edges)
    {
        CadEdgeBoundaryPath path = new();
        path.Edges.AddRange(edges);
        return path;
    }
}
