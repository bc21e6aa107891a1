using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Takes what entities consist of. Whoever draws, measures or meshes entities implements the shapes that matter to it;
/// the others are passed over.
/// </summary>
internal interface IGeometrySink
{
    void Point(Vec3 at)
    {
    }

    /// <summary>A line, and the way to its copy at the other end of its thickness.</summary>
    void Line(Vec3 from, Vec3 to, Vec3 thickness)
    {
    }

    /// <summary>A ray, or a line without ends.</summary>
    void InfiniteLine(Vec3 from, Vec3 direction, bool bothWays)
    {
    }

    void Arc(in PlanarArc arc)
    {
    }

    void EllipticArc(in EllipticArc arc)
    {
    }

    void Spline(in SplineCurve spline)
    {
    }

    /// <summary>A polyline in a plane, of straight segments and arcs.</summary>
    void Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
    }

    /// <summary>A polyline in space.</summary>
    void Polyline(ReadOnlySpan<Vec3> points, bool closed)
    {
    }

    void Grid(in PointGrid grid)
    {
    }

    /// <summary>A face; bit i of the mask hides the edge that leaves corner i.</summary>
    void Face(ReadOnlySpan<Vec3> corners, int hiddenEdges)
    {
    }

    void Faces(FaceSet faces)
    {
    }

    /// <summary>A filled polygon in space.</summary>
    void FilledPolygon(ReadOnlySpan<Vec3> corners) => Polyline(corners, closed: true);

    void Quad(in FilledQuad quad)
    {
    }

    void Hatch(CadHatch hatch, in Affine3 plane)
    {
    }

    /// <summary>An area whose boundaries are drawn, too; the colour of the hatch is that of the area.</summary>
    void Polygon(CadHatch area, in Affine3 plane) => Hatch(area, plane);

    /// <summary>The edges of a solid, a surface or a region.</summary>
    void Edges(AcisWireframe edges)
    {
    }

    void Text(in TextLine text)
    {
    }

    /// <summary>Paragraphs in a plane whose origin is the insertion point.</summary>
    void Paragraphs(CadMText text, in Affine3 plane)
    {
    }

    /// <summary>A frame of tolerances in a plane whose origin is the insertion point.</summary>
    void Tolerance(CadTolerance tolerance, in Affine3 plane)
    {
    }

    void Image(in ImageFrame image)
    {
    }

    /// <summary>A frame that content of another file or program fills.</summary>
    void Frame(in ContentFrame frame)
    {
    }

    void Leader(CadLeader leader, List<Vec3> points)
    {
    }

    /// <summary>Leaders that share a text or a block.</summary>
    void MultiLeader(CadMLeader leader)
    {
    }

    /// <summary>A table, whose graphics are in a block that the map places.</summary>
    void Table(CadTableEntity table, in Affine3 map)
    {
    }

    void MultiLine(CadMultiLine line)
    {
    }

    /// <summary>A glyph of a shape file.</summary>
    void Shape(CadShape shape, Vec3 at)
    {
    }

    void BlockReference(CadInsertObject insert)
    {
    }

    /// <summary>How the shapes that follow are drawn, up to the end of the entity.</summary>
    void Traits(in ShapeTraits traits)
    {
    }

    /// <summary>Shows no more than what is inside of a polygon, until as many ends follow as there were
    /// starts.</summary>
    void StartClip(ReadOnlySpan<Vec3> corners)
    {
    }

    void EndClip()
    {
    }

    /// <summary>A dimension, which is drawn by a block of its own.</summary>
    void Dimension(CadDimensionBase dimension)
    {
    }
}

/// <summary>A frame that content of another file or program fills: the corners of its outline in world
/// coordinates.</summary>
internal readonly record struct ContentFrame(Vec3[] Corners, CadEntityBase Source)
{
    /// <summary>Gets the outline of a part that is hidden; none for most frames.</summary>
    internal Vec3[] Hidden { get; init; } = [];
}

/// <summary>An arc of a circle in a plane, with angles in radians; counterclockwise where the sweep is
/// positive.</summary>
internal readonly record struct PlanarArc(Affine3 Plane, Vec3 Center, double Radius, double Start, double Sweep)
{
    internal double Thickness { get; init; }

    /// <summary>Gets whether it is a circle, which has no ends.</summary>
    internal bool IsCircle { get; init; }
}

/// <summary>An arc of an ellipse, with parameters in radians.</summary>
internal readonly record struct EllipticArc(Vec3 Center, Vec3 Major, Vec3 Minor, double Start, double Sweep)
{
    private const double Tolerance = 1e-9;

    internal bool IsWhole => Sweep >= Math.Tau - Tolerance;
}

/// <summary>A spline: the curve of its control points, else a curve through fit points where there are two.</summary>
internal readonly record struct SplineCurve(Nurbs? Curve, List<Vec3> Control, List<Vec3> Fit)
{
    internal Vec3 StartTangent { get; init; }

    internal Vec3 EndTangent { get; init; }

    internal bool IsClosed { get; init; }

    /// <summary>Draws the curve within a tolerance. False where there is none.</summary>
    internal bool TryDraw(in PathPen pen, double tolerance)
    {
        if (Curve is not null)
        {
            Curve.Draw(pen, tolerance);
            return true;
        }

        if (Fit.Count > 1)
        {
            FitSpline.Draw(pen, Fit, StartTangent, EndTangent, IsClosed);
            return true;
        }

        return false;
    }
}

/// <summary>What the vertices of a polyline in a plane have in common.</summary>
internal readonly record struct PlanarPolyline(Affine3 Plane, double Elevation, double Thickness, bool IsClosed)
{
    /// <summary>Gets whether the line type goes on around the vertices.</summary>
    internal bool HasContinuousPattern { get; init; }
}

/// <summary>A polygon mesh of rows and columns; a smoothed one has the points of its surface.</summary>
internal readonly record struct PointGrid(List<Vec3> Points, int Rows, int Columns, bool ClosesRows, bool ClosesColumns)
{
    internal bool IsWhole => Rows > 0 && Columns > 0 && (long)Rows * Columns <= Points.Count;
}

/// <summary>A face of a set: its corners among <see cref="FaceSet.Corners"/>.</summary>
internal readonly record struct FaceCorners(int First, int Count, int HiddenEdges);

/// <summary>Faces between points that they share.</summary>
internal sealed record FaceSet(List<Vec3> Points)
{
    /// <summary>Gets indices into the points.</summary>
    internal List<int> Corners { get; } = [];

    internal List<FaceCorners> Faces { get; } = [];

    internal Vec3[] Ring(FaceCorners face)
    {
        var ring = new Vec3[face.Count];
        for (int i = 0; i < ring.Length; i++)
        {
            ring[i] = Points[Corners[face.First + i]];
        }

        return ring;
    }
}

/// <summary>A filled area of four corners around, of which two may fall together.</summary>
internal readonly record struct FilledQuad(Affine3 Plane, Vec3 A, Vec3 B, Vec3 C, Vec3 D, double Thickness);

/// <summary>What a line of text is to the drawing.</summary>
internal enum TextRole
{
    Text,

    /// <summary>A value that a block reference carries.</summary>
    Attribute,

    /// <summary>What a block asks of its references; it shows its tag.</summary>
    AttributeDefinition,
}

internal enum HorizontalAlign
{
    Left = 0,
    Center = 1,
    Right = 2,
    Aligned = 3,
    Middle = 4,
    Fit = 5,
}

internal enum VerticalAlign
{
    Baseline = 0,
    Bottom = 1,
    Middle = 2,
    Top = 3,
}

/// <summary>A line of text in a plane; angles are in radians.</summary>
internal readonly record struct TextLine(CadText Source, Affine3 Plane, TextRole Role)
{
    // Group code 71 of a text, and group code 70 of an attribute.
    private const int Backward = 2;
    private const int UpsideDown = 4;
    private const int Invisible = 1;
    private const int Constant = 2;

    internal string Content => Source.DefaultValue;

    /// <summary>Gets what is seen: a definition shows its tag, unless its value is constant.</summary>
    internal string Shown => Source is CadAttDef definition && !IsConstant ? definition.DefinitionTagString : Content;

    /// <summary>Gets whether a definition has the same value in all references.</summary>
    internal bool IsConstant => (AttributeFlags & Constant) != 0;

    /// <summary>Gets whether an attribute is hidden where drawings respect that.</summary>
    internal bool IsHidden => (AttributeFlags & Invisible) != 0;

    internal Vec3 First => Source.FirstAlignment.ToVec3();

    internal Vec3 Second => Source.SecondAlignment.ToVec3();

    internal HorizontalAlign Horizontal => (HorizontalAlign)Math.Clamp((int)Source.HorizontalAlignment, 0, 5);

    internal VerticalAlign Vertical => (VerticalAlign)Math.Clamp((int)Source.VerticalAlignment, 0, 3);

    /// <summary>Gets the point that the alignment refers to.</summary>
    internal Vec3 Anchor =>
        Horizontal == HorizontalAlign.Left && Vertical == VerticalAlign.Baseline ? First : Second;

    internal double Height => Source.TextHeight;

    internal double WidthFactor => Source.ScaleX;

    internal double Rotation => Angles.Radians(Source.TextRotation);

    internal double Oblique => Angles.Radians(Source.ObliqueAngle);

    internal string StyleName => Source.StyleType;

    private int AttributeFlags => Source switch
    {
        CadAttDef definition => definition.AttFlags,
        CadAttrib attribute => attribute.AttFlags,
        _ => 0,
    };

    internal bool IsBackward => (Source.TextGenerationFlags & Backward) != 0;

    internal bool IsUpsideDown => (Source.TextGenerationFlags & UpsideDown) != 0;
}

/// <summary>
/// An image by the corner of its lower left pixel and the ways of one pixel along its rows and columns. Its outline is
/// in pixels; two points are corners of a rectangle, more are a polygon, none is the whole image.
/// </summary>
internal readonly record struct ImageFrame(Vec3 Corner, Vec3 U, Vec3 V, Cad2DPoint Size, CadEntityBase Source)
{
    internal Vec3 Across => U * Size.X;

    internal Vec3 Up => V * Size.Y;
}
