using System;

namespace Korvan.CAD;

/// <summary>A floating-point width and height.</summary>
public struct SizeF : IEquatable<SizeF>
{
    /// <summary>Creates the value from its components.</summary>
    /// <param name="width">The width.</param>
    /// <param name="height">The height.</param>
    public SizeF(float width, float height)
    {
        Width = width;
        Height = height;
    }

    /// <summary>Gets the value with all components zero.</summary>
    public static SizeF Empty => default;

    /// <summary>Gets or sets the width.</summary>
    public float Width { get; set; }

    /// <summary>Gets or sets the height.</summary>
    public float Height { get; set; }

    /// <summary>Gets whether all components are zero.</summary>
    public readonly bool IsEmpty => Width == 0 && Height == 0;

    /// <summary>Compares two values component by component.</summary>
    public static bool operator ==(SizeF left, SizeF right) => left.Equals(right);

    /// <summary>Compares two values component by component.</summary>
    public static bool operator !=(SizeF left, SizeF right) => !left.Equals(right);

    /// <summary>Converts the sides to coordinates.</summary>
    public static explicit operator PointF(SizeF value) => new(value.Width, value.Height);

    /// <summary>Determines whether two values are equal component by component.</summary>
    /// <param name="other">The value to compare with.</param>
    /// <returns>Whether they are equal.</returns>
    public readonly bool Equals(SizeF other) => Width == other.Width && Height == other.Height;

    /// <inheritdoc/>
    public override readonly bool Equals(object? obj) => obj is SizeF other && Equals(other);

    /// <inheritdoc/>
    public override readonly int GetHashCode() => HashCode.Combine(Width, Height);

    /// <inheritdoc/>
    public override readonly string ToString() => FormattableString.Invariant($"SizeF({Width}, {Height})");
}
