using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A polyline.</summary>
[CgmCommand(GraphicalPrimitiveElement.Polyline, "LINE", Default = "a polyline without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class Polyline : Command
{
    /// <summary>Gets or sets the points, at least two.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Separate line segments: from the first point to the second, from the third to the fourth and so
/// on.</summary>
[CgmCommand(GraphicalPrimitiveElement.DisjointPolyline, "DISJTLINE", Default = "the element without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class DisjointPolyline : Command
{
    /// <summary>Gets or sets the points, an even count.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Markers at points.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolyMarker, "MARKER", Default = "the element without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class PolyMarker : Command
{
    /// <summary>Gets or sets the points, at least one.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Symbols of the current symbol library at points.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolySymbol, "SYMBOL")]
public sealed partial class PolySymbol : Command
{
    /// <summary>Gets or sets the index of the symbol in its library, from 1.</summary>
    [CgmIndex]
    public int SymbolIndex { get; set; } = 1;

    /// <summary>Gets or sets the points.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Cubic Bézier curves, separate or continuous.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolyBezier, "POLYBEZIER", Default = "the element without points")]
public sealed partial class PolyBezier : Command
{
    /// <summary>Gets or sets the continuity: 1 for separate curves of four points each, 2 for curves of three points
    /// that start at the end of the curve before; others are registered.</summary>
    [CgmIndex]
    public int ContinuityIndicator { get; set; } = 1;

    /// <summary>Gets or sets the control points.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Returns the curves; incomplete ones are left out.</summary>
    /// <returns>The curves; incomplete ones are left out.</returns>
    public List<BezierCurve> GetCurves()
    {
        var curves = new List<BezierCurve>();
        int step = ContinuityIndicator == 2 ? 3 : 4;
        for (int i = 0; i + 3 < Points.Count; i += step)
        {
            curves.Add(new BezierCurve(Points[i], Points[i + 1], Points[i + 2], Points[i + 3]));
        }

        return curves;
    }
}

/// <summary>A non-uniform B-spline curve.</summary>
[CgmCommand(GraphicalPrimitiveElement.NonUniformBSpline, "NUB", Default = "a curve of the third degree without points")]
public partial class NonUniformBSpline : Command
{
    /// <summary>Gets or sets the order, one more than the degree, at least 2.</summary>
    [CgmInteger]
    public int Order { get; set; } = 4;

    /// <summary>Gets or sets the control points, at least as many as the order.</summary>
    [CgmPoint(Counted = true)]
    public List<CgmPoint> ControlPoints { get; set; } = [];

    /// <summary>Gets or sets the knots in ascending order, as many as order and control points together.</summary>
    [CgmReal(Count = "(long)Order + ControlPoints.Count")]
    public List<double> Knots { get; set; } = [];

    /// <summary>Gets or sets the parameter at the start of the curve.</summary>
    [CgmReal]
    public double StartParameter { get; set; }

    /// <summary>Gets or sets the parameter at the end of the curve.</summary>
    [CgmReal]
    public double EndParameter { get; set; } = 1;
}

/// <summary>A non-uniform rational B-spline curve (NURBS).</summary>
[CgmCommand(GraphicalPrimitiveElement.NonUniformRationalBSpline, "NURB",
    Default = "a curve of the third degree without points")]
public sealed partial class NonUniformRationalBSpline : NonUniformBSpline
{
    /// <summary>Gets or sets the weights of the control points, positive.</summary>
    [CgmReal(Count = "ControlPoints.Count")]
    public List<double> Weights { get; set; } = [];
}

/// <summary>Makes the line to the next primitive of a closed figure an edge.</summary>
[CgmCommand(GraphicalPrimitiveElement.ConnectingEdge, "CONNEDGE")]
public sealed partial class ConnectingEdge : Command;

/// <summary>A primitive outside the standard, selected by an identifier that is registered, or private when
/// negative.</summary>
[CgmCommand(GraphicalPrimitiveElement.GeneralizedDrawingPrimitive, "GDP")]
public sealed partial class GeneralizedDrawingPrimitive : Command
{
    /// <summary>Gets or sets the identifier of the primitive.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the points; the primitive defines their meaning.</summary>
    [CgmCustom]
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets the data record of the primitive.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];

    /// <summary>Clear text has no count; there the data record ends the list.</summary>
    private List<CgmPoint> ExchangePoints(ParameterExchange x)
    {
        if (!x.IsClearText)
        {
            return x.Counted(Points, static (y, point) => y.Point(point));
        }

        if (!x.IsReading)
        {
            return x.Points(Points);
        }

        var points = new List<CgmPoint>();
        while (x.HasMore && !x.IsAtString)
        {
            points.Add(x.Point(null));
        }

        return points;
    }
}
