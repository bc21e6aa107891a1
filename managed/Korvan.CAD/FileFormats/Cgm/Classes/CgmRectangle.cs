using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A rectangle in VDC, given by two opposite corners. Where the first is not the lower left one, the axes of
/// the picture are mirrored.</summary>
public struct CgmRectangle : IEquatable<CgmRectangle>
{
    /// <summary>Creates a rectangle.</summary>
    /// <param name="x1">The abscissa of the first corner.</param>
    /// <param name="y1">The ordinate of the first corner.</param>
    /// <param name="x2">The abscissa of the second corner.</param>
    /// <param name="y2">The ordinate of the second corner.</param>
    public CgmRectangle(double x1, double y1, double x2, double y2)
    {
        X1 = x1;
        Y1 = y1;
        X2 = x2;
        Y2 = y2;
    }

    /// <summary>Gets or sets X of the first corner.</summary>
    public double X1 { get; set; }

    /// <summary>Gets or sets Y of the first corner.</summary>
    public double Y1 { get; set; }

    /// <summary>Gets or sets X of the second corner.</summary>
    public double X2 { get; set; }

    /// <summary>Gets or sets Y of the second corner.</summary>
    public double Y2 { get; set; }

    /// <summary>Gets the width, not negative.</summary>
    public readonly double Width => Math.Abs(X2 - X1);

    /// <summary>Gets the height, not negative.</summary>
    public readonly double Height => Math.Abs(Y2 - Y1);

    /// <summary>Compares two rectangles corner by corner.</summary>
    public static bool operator ==(CgmRectangle left, CgmRectangle right) => left.Equals(right);

    /// <summary>Compares two rectangles corner by corner.</summary>
    public static bool operator !=(CgmRectangle left, CgmRectangle right) => !left.Equals(right);

    /// <summary>Returns whether both corners are the same.</summary>
    /// <param name="other">The rectangle to compare with.</param>
    /// <returns>Whether both corners are the same.</returns>
    public readonly bool Equals(CgmRectangle other) =>
        X1 == other.X1 && Y1 == other.Y1 && X2 == other.X2 && Y2 == other.Y2;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is CgmRectangle other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X1, Y1, X2, Y2);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"({X1}, {Y1}) to ({X2}, {Y2})");
}
