using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A cubic Bézier curve by its four control points.</summary>
public sealed class BezierCurve
{
    /// <summary>Creates a curve.</summary>
    /// <param name="start">Where it begins.</param>
    /// <param name="firstControl">Where it goes first.</param>
    /// <param name="secondControl">Where it comes from last.</param>
    /// <param name="end">Where it ends.</param>
    public BezierCurve(CgmPoint start, CgmPoint firstControl, CgmPoint secondControl, CgmPoint end)
    {
        Start = start ?? throw new ArgumentNullException(null, "start must not be None.");
        FirstControl = firstControl ?? throw new ArgumentNullException(null, "first_control must not be None.");
        SecondControl = secondControl ?? throw new ArgumentNullException(null, "second_control must not be None.");
        End = end ?? throw new ArgumentNullException(null, "end must not be None.");
    }

    /// <summary>Gets where the curve begins.</summary>
    public CgmPoint Start { get; }

    /// <summary>Gets where the curve goes first.</summary>
    public CgmPoint FirstControl { get; }

    /// <summary>Gets where the curve comes from last.</summary>
    public CgmPoint SecondControl { get; }

    /// <summary>Gets where the curve ends.</summary>
    public CgmPoint End { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{Start} {FirstControl} {SecondControl} {End}";
}
