using System;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A point or vector in the plane.</summary>
public class Cad2DPoint
{
    /// <summary>Creates the origin.</summary>
    public Cad2DPoint()
    {
    }

    /// <summary>Creates a point.</summary>
    /// <param name="x">The coordinate along X.</param>
    /// <param name="y">The coordinate along Y.</param>
    public Cad2DPoint(double x, double y)
    {
        X = x;
        Y = y;
    }

    /// <summary>Gets or sets the coordinate along X.</summary>
    public double X { get; set; }

    /// <summary>Gets or sets the coordinate along Y.</summary>
    public double Y { get; set; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"({X}, {Y})");

    internal bool Is(double x, double y) => X == x && Y == y;
}
