using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The edges of a body as curves, with lines on its curved faces.</summary>
internal sealed class AcisWireframe
{
    internal List<(Vec3 From, Vec3 To)> Lines { get; } = [];

    internal List<AcisArc> Arcs { get; } = [];

    /// <summary>Gets whole splines.</summary>
    internal List<AcisSpline> Splines { get; } = [];

    /// <summary>Gets parts of splines as points along them.</summary>
    internal List<Vec3[]> Polylines { get; } = [];

    /// <summary>Gets the number of edges with a curve that is not known.</summary>
    internal int UnreadEdges { get; set; }

    internal bool IsEmpty => Lines.Count + Arcs.Count + Splines.Count + Polylines.Count == 0;
}

/// <summary>An arc of an ellipse, with parameters in radians.</summary>
internal readonly record struct AcisArc(Vec3 Center, Vec3 Major, Vec3 Minor, double Start, double Sweep)
{
    internal Vec3 At(double angle) => Center + (Major * System.Math.Cos(angle)) + (Minor * System.Math.Sin(angle));
}

/// <summary>An edge by its ends, the index of its curve (negative for a point), and whether it runs against
/// it.</summary>
internal readonly record struct AcisEdge(Vec3 Start, Vec3 End, int Curve, bool IsReversed);

/// <summary>A spline with its control points.</summary>
internal readonly record struct AcisSpline(Nurbs Curve, List<Vec3> Control);
