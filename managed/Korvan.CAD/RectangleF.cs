using System;

namespace Korvan.CAD;

/// <summary>An axis-parallel rectangle; Y grows downwards.</summary>
public partial struct RectangleF : IEquatable<RectangleF>
{
    /// <summary>Creates a rectangle from its upper left corner and its size.</summary>
    /// <param name="x">The left side.</param>
    /// <param name="y">The top side.</param>
    /// <param name="width">The width.</param>
    /// <param name="height">The height.</param>
    public RectangleF(float x, float y, float width, float height)
    {
        X = x;
        Y = y;
        Width = width;
        Height = height;
    }

    /// <summary>Creates a rectangle from its upper left corner and its size.</summary>
    /// <param name="location">The upper left corner.</param>
    /// <param name="size">Width and height.</param>
    public RectangleF(PointF location, SizeF size)
        : this(location.X, location.Y, size.Width, size.Height)
    {
    }

    /// <summary>Gets the empty rectangle at the origin.</summary>
    public static RectangleF Empty => default;

    /// <summary>Gets or sets the left side.</summary>
    public float X { get; set; }

    /// <summary>Gets or sets the top side.</summary>
    public float Y { get; set; }

    /// <summary>Gets or sets the width.</summary>
    public float Width { get; set; }

    /// <summary>Gets or sets the height.</summary>
    public float Height { get; set; }

    /// <summary>Gets the left side.</summary>
    public readonly float Left => X;

    /// <summary>Gets the top side.</summary>
    public readonly float Top => Y;

    /// <summary>Gets the right side.</summary>
    public readonly float Right => X + Width;

    /// <summary>Gets the bottom side.</summary>
    public readonly float Bottom => Y + Height;

    /// <summary>Gets the upper left corner.</summary>
    public readonly PointF Location => new(X, Y);

    /// <summary>Gets width and height.</summary>
    public readonly SizeF Size => new(Width, Height);

    /// <summary>Gets whether position and size are zero.</summary>
    public readonly bool IsEmpty => X == 0 && Y == 0 && Width == 0 && Height == 0;

    /// <summary>Compares two rectangles by position and size.</summary>
    public static bool operator ==(RectangleF left, RectangleF right) => left.Equals(right);

    /// <summary>Compares two rectangles by position and size.</summary>
    public static bool operator !=(RectangleF left, RectangleF right) => !left.Equals(right);

    /// <summary>Determines whether position and size are equal.</summary>
    /// <param name="other">The rectangle to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(RectangleF other)
    {
        return X == other.X && Y == other.Y && Width == other.Width && Height == other.Height;
    }

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is RectangleF other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(X, Y, Width, Height);

    /// <inheritdoc/>
    public override readonly string ToString()
    {
        return FormattableString.Invariant($"RectangleF({X}, {Y}, {Width}, {Height})");
    }
}
