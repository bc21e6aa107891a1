using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A point in viewport coordinates.</summary>
public sealed class ViewportPoint
{
    /// <summary>Creates the point at the lower left corner of the surface.</summary>
    public ViewportPoint()
        : this(new VC(), new VC())
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="first">The abscissa.</param>
    /// <param name="second">The ordinate.</param>
    public ViewportPoint(VC first, VC second)
    {
        Verify.NotNull(first);
        Verify.NotNull(second);
        First = first;
        Second = second;
    }

    /// <summary>Gets the X coordinate.</summary>
    public VC First { get; }

    /// <summary>Gets the Y coordinate.</summary>
    public VC Second { get; }

    /// <inheritdoc/>
    public override string ToString() => $"({First}, {Second})";
}
