using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Cubic Bézier curves, each of its own or one after the other.</summary>
public sealed class PolyBezier : Command
{
    /// <summary>Creates no curves.</summary>
    public PolyBezier()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.PolyBezier)
    {
    }

    /// <summary>Gets or sets 1 where each curve has four points of its own, 2 where each begins at the end of the last
    /// one and has three; others are registered.</summary>
    public int ContinuityIndicator { get; set; } = 1;

    /// <summary>Gets or sets the control points.</summary>
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

    internal override void Exchange(ParameterExchange x)
    {
        ContinuityIndicator = x.Index(ContinuityIndicator);
        Points = x.Points(Points);
    }
}
