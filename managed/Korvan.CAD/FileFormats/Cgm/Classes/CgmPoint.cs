using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A point in virtual device coordinates (VDC).</summary>
public sealed class CgmPoint : IEquatable<CgmPoint>
{
    /// <summary>Creates the point at the origin.</summary>
    public CgmPoint()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The abscissa.</param>
    /// <param name="y">The ordinate.</param>
    public CgmPoint(double x, double y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets the X coordinate.</summary>
    public double X { get; }

    /// <summary>Gets the Y coordinate.</summary>
    public double Y { get; }

    /// <summary>Returns whether both points have the same coordinates.</summary>
    /// <param name="other">The point to compare with.</param>
    /// <returns>Whether both points have the same coordinates.</returns>
    public bool Equals(CgmPoint? other) => other is not null && X == other.X && Y == other.Y;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as CgmPoint);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(X, Y);

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"({X}, {Y})");
}
