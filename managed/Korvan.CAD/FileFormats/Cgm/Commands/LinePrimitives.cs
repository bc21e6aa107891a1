using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A line through points.</summary>
[CgmCommand(GraphicalPrimitiveElement.Polyline, "LINE",
    Default = "a line without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class Polyline : Command
{
    /// <summary>Gets or sets the points, at least two.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Lines from the first point to the second, from the third to the fourth and so on.</summary>
[CgmCommand(GraphicalPrimitiveElement.DisjointPolyline, "DISJTLINE",
    Default = "no lines")]
[CgmConstructor(nameof(Points))]
public sealed partial class DisjointPolyline : Command
{
    /// <summary>Gets or sets the points, an even count.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Markers at points.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolyMarker, "MARKER",
    Default = "no markers")]
[CgmConstructor(nameof(Points))]
public sealed partial class PolyMarker : Command
{
    /// <summary>Gets or sets the points, at least one.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Symbols of the current library at points.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolySymbol, "SYMBOL")]
public sealed partial class PolySymbol : Command
{
    /// <summary>Gets or sets the symbol in its library, from 1.</summary>
    [CgmIndex]
    public int SymbolIndex { get; set; } = 1;

    /// <summary>Gets or sets the points.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Cubic Bézier curves, each of its own or one after the other.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolyBezier, "POLYBEZIER",
    Default = "no curves")]
public sealed partial class PolyBezier : Command
{
    /// <summary>Gets or sets 1 where each curve has four points of its own, 2 where each begins at the end of the last
    /// one and has three; others are registered.</summary>
    [CgmIndex]
    public int ContinuityIndicator { get; set; } = 1;

    /// <summary>Gets or sets the control points.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gives the curves; points that are left over make none.</summary>
    /// <returns>The curves.</returns>
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

/// <summary>A B-spline curve.</summary>
[CgmCommand(GraphicalPrimitiveElement.NonUniformBSpline, "NUB",
    Default = "a curve of the third degree without points")]
public partial class NonUniformBSpline : Command
{
    /// <summary>Gets or sets the order: the degree and one, at least 2.</summary>
    [CgmInteger]
    public int Order { get; set; } = 4;

    /// <summary>Gets or sets the control points, at least as many as the order.</summary>
    [CgmPoint(Counted = true)]
    public List<CgmPoint> ControlPoints { get; set; } = [];

    /// <summary>Gets or sets the knots, as many as order and control points together, none smaller than the one
    /// before.</summary>
    [CgmReal(Count = "(long)Order + ControlPoints.Count")]
    public List<double> Knots { get; set; } = [];

    /// <summary>Gets or sets the parameter where the curve begins.</summary>
    [CgmReal]
    public double StartParameter { get; set; }

    /// <summary>Gets or sets the parameter where the curve ends.</summary>
    [CgmReal]
    public double EndParameter { get; set; } = 1;
}

/// <summary>A rational B-spline curve.</summary>
[CgmCommand(GraphicalPrimitiveElement.NonUniformRationalBSpline, "NURB",
    Default = "a curve of the third degree without points")]
public sealed partial class NonUniformRationalBSpline : NonUniformBSpline
{
    /// <summary>Gets or sets the weights of the control points, positive.</summary>
    [CgmReal(Count = "ControlPoints.Count")]
    public List<double> Weights { get; set; } = [];
}

/// <summary>Makes the line to the next piece of a closed figure an edge.</summary>
[CgmCommand(GraphicalPrimitiveElement.ConnectingEdge, "CONNEDGE")]
public sealed partial class ConnectingEdge : Command;

/// <summary>Something to draw that the format has no element for; its number is registered, or private when
/// negative.</summary>
[CgmCommand(GraphicalPrimitiveElement.GeneralizedDrawingPrimitive, "GDP")]
public sealed partial class GeneralizedDrawingPrimitive : Command
{
    /// <summary>Gets or sets what is drawn.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the points, whose meaning what is drawn tells.</summary>
    [CgmCustom]
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets further data.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];

    /// <summary>Clear text has no count; there the data ends the list.</summary>
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
