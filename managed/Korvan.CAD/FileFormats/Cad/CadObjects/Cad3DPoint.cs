using System;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A point or vector in space.</summary>
public class Cad3DPoint
{
    /// <summary>Creates the origin.</summary>
    public Cad3DPoint()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The coordinate along X.</param>
    /// <param name="y">The coordinate along Y.</param>
    /// <param name="z">The coordinate along Z.</param>
    public Cad3DPoint(double x, double y, double z)
    {
        X = x;
        Y = y;
        Z = z;
    }

    /// <summary>Gets or sets the coordinate along X.</summary>
    public double X { get; set; }

    /// <summary>Gets or sets the coordinate along Y.</summary>
    public double Y { get; set; }

    /// <summary>Gets or sets the coordinate along Z.</summary>
    public double Z { get; set; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"({X}, {Y}, {Z})");

    internal bool Is(double x, double y, double z) => X == x && Y == y && Z == z;
}
