using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A cubic Bézier curve.</summary>
public sealed class BezierCurve
{
    /// <summary>Creates a curve.</summary>
    /// <param name="start">The start point.</param>
    /// <param name="firstControl">The first control point.</param>
    /// <param name="secondControl">The second control point.</param>
    /// <param name="end">The end point.</param>
    public BezierCurve(CgmPoint start, CgmPoint firstControl, CgmPoint secondControl, CgmPoint end)
    {
        Start = start ?? throw new ArgumentNullException(null, "start must not be None.");
        FirstControl = firstControl ?? throw new ArgumentNullException(null, "first_control must not be None.");
        SecondControl = secondControl ?? throw new ArgumentNullException(null, "second_control must not be None.");
        End = end ?? throw new ArgumentNullException(null, "end must not be None.");
    }

    /// <summary>Gets the start point.</summary>
    public CgmPoint Start { get; }

    /// <summary>Gets the first control point.</summary>
    public CgmPoint FirstControl { get; }

    /// <summary>Gets the second control point.</summary>
    public CgmPoint SecondControl { get; }

    /// <summary>Gets the end point.</summary>
    public CgmPoint End { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{Start} {FirstControl} {SecondControl} {End}";
}
