using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A rational B-spline curve.</summary>
public sealed class NonUniformRationalBSpline : NonUniformBSpline
{
    /// <summary>Creates a curve of the third degree without points.</summary>
    public NonUniformRationalBSpline()
        : base((int)GraphicalPrimitiveElement.NonUniformRationalBSpline)
    {
    }

    /// <summary>Gets or sets the weights of the control points, positive.</summary>
    public List<double> Weights { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        if (!x.IsReading && Weights.Count != ControlPoints.Count)
        {
            throw new CgmDataException($"{ControlPoints.Count} control points have {Weights.Count} weights");
        }

        base.Exchange(x);
        Weights = x.Counted(Weights, ControlPoints.Count, static (y, weight) => y.Real(weight));
    }
}
