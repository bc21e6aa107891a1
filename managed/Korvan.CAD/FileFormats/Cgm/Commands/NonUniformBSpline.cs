using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A B-spline curve.</summary>
public class NonUniformBSpline : Command
{
    /// <summary>Creates a curve of the third degree without points.</summary>
    public NonUniformBSpline()
        : this((int)GraphicalPrimitiveElement.NonUniformBSpline)
    {
    }

    private protected NonUniformBSpline(int elementId)
        : base(ClassCode.GraphicalPrimitiveElement, elementId)
    {
    }

    /// <summary>Gets or sets the order: the degree and one, at least 2.</summary>
    public int Order { get; set; } = 4;

    /// <summary>Gets or sets the control points, at least as many as the order.</summary>
    public List<CgmPoint> ControlPoints { get; set; } = [];

    /// <summary>Gets or sets the knots, as many as order and control points together, none smaller than the one
    /// before.</summary>
    public List<double> Knots { get; set; } = [];

    /// <summary>Gets or sets the parameter where the curve begins.</summary>
    public double StartParameter { get; set; }

    /// <summary>Gets or sets the parameter where the curve ends.</summary>
    public double EndParameter { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        if (!x.IsReading)
        {
            RequireCounts();
        }

        Order = x.Integer(Order);
        int count = x.Integer(ControlPoints.Count);
        ControlPoints = x.Counted(ControlPoints, count, static (y, point) => y.Point(point));
        Knots = x.Counted(Knots, KnotCount(count), static (y, knot) => y.Real(knot));
        StartParameter = x.Real(StartParameter);
        EndParameter = x.Real(EndParameter);
    }

    private int KnotCount(int points)
    {
        long count = (long)Order + points;
        return count is >= 0 and <= int.MaxValue
            ? (int)count
            : throw new CgmDataException($"a curve of order {Order} cannot have {points} control points");
    }

    private void RequireCounts()
    {
        if (Knots.Count != KnotCount(ControlPoints.Count))
        {
            throw new CgmDataException(
                $"a curve of order {Order} with {ControlPoints.Count} control points has {Knots.Count} knots");
        }
    }
}
