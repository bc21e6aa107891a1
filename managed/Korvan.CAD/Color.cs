using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>A colour with red, green, blue and opacity of 8 bits each.</summary>
public readonly partial struct Color : IEquatable<Color>
{
    private readonly uint _argb;
    private readonly bool _isSet;

    internal Color(uint argb)
    {
        _argb = argb;
        _isSet = true;
    }

    /// <summary>Gets the colour that was never set; it differs from transparent black.</summary>
    public static Color Empty => default;

    /// <summary>Gets the opacity, 0 (invisible) to 255 (opaque).</summary>
    public byte A => (byte)(_argb >> 24);

    /// <summary>Gets the red part, 0 to 255.</summary>
    public byte R => (byte)(_argb >> 16);

    /// <summary>Gets the green part, 0 to 255.</summary>
    public byte G => (byte)(_argb >> 8);

    /// <summary>Gets the blue part, 0 to 255.</summary>
    public byte B => (byte)_argb;

    /// <summary>Gets whether the colour was never set.</summary>
    public bool IsEmpty => !_isSet;

    /// <summary>Gets whether the colour is one of those with a name.</summary>
    public bool IsKnownColor => _isSet && FindName(_argb) is not null;

    /// <summary>Gets the name of a well-known colour, otherwise its value as <c>aarrggbb</c> in hexadecimal.</summary>
    public string Name => !_isSet ? "0" : FindName(_argb) ?? _argb.ToString("x8");

    /// <summary>Compares two colours by value.</summary>
    public static bool operator ==(Color left, Color right) => left.Equals(right);

    /// <summary>Compares two colours by value.</summary>
    public static bool operator !=(Color left, Color right) => !left.Equals(right);

    /// <summary>Makes a colour from a number whose bytes are opacity, red, green and blue, the highest first.</summary>
    /// <param name="argb">The number.</param>
    /// <returns>A colour from a number whose bytes are opacity, red, green and blue, the highest first.</returns>
    public static Color FromArgb(int argb) => new(unchecked((uint)argb));

    /// <summary>Makes a colour with another opacity.</summary>
    /// <param name="alpha">The opacity, 0 to 255.</param>
    /// <param name="baseColor">The colour whose red, green and blue are taken.</param>
    /// <returns>A colour with another opacity.</returns>
    public static Color FromArgb(int alpha, Color baseColor)
    {
        return new Color((Part(alpha, nameof(alpha)) << 24) | (baseColor._argb & 0xFFFFFF));
    }

    /// <summary>Makes an opaque colour.</summary>
    /// <param name="red">The red part, 0 to 255.</param>
    /// <param name="green">The green part, 0 to 255.</param>
    /// <param name="blue">The blue part, 0 to 255.</param>
    /// <returns>An opaque colour.</returns>
    public static Color FromArgb(int red, int green, int blue) => FromArgb(255, red, green, blue);

    /// <summary>Makes a colour from its four parts.</summary>
    /// <param name="alpha">The opacity, 0 to 255.</param>
    /// <param name="red">The red part, 0 to 255.</param>
    /// <param name="green">The green part, 0 to 255.</param>
    /// <param name="blue">The blue part, 0 to 255.</param>
    /// <returns>A colour from its four parts.</returns>
    public static Color FromArgb(int alpha, int red, int green, int blue)
    {
        return new Color(
            (Part(alpha, nameof(alpha)) << 24) | (Part(red, nameof(red)) << 16)
            | (Part(green, nameof(green)) << 8) | Part(blue, nameof(blue)));
    }

    /// <summary>Finds a well-known colour; upper and lower case are the same.</summary>
    /// <param name="name">The name, as in <c>"MidnightBlue"</c>.</param>
    /// <returns>A well-known colour.</returns>
    /// <exception cref="FrameworkException">No colour has this name.</exception>
    public static Color FromName(string name)
    {
        foreach ((string known, uint argb) in KnownNames)
        {
            if (string.Equals(known, name, StringComparison.OrdinalIgnoreCase))
            {
                return new Color(argb);
            }
        }

        throw new FrameworkException($"No colour is called '{name}'; names are those of style sheets, like 'Tomato'.");
    }

    /// <summary>Gives the colour as a number whose bytes are opacity, red, green and blue, the highest first.</summary>
    /// <returns>The colour as a number whose bytes are opacity, red, green and blue, the highest first.</returns>
    public int ToArgb() => unchecked((int)_argb);

    /// <summary>Gives the lightness of the colour, 0 (black) to 1 (white).</summary>
    /// <remarks>The mean of the largest and the smallest part, as in the HSL model.</remarks>
    /// <returns>The lightness of the colour, 0 (black) to 1 (white).</returns>
    public float GetBrightness()
    {
        return (Math.Max(R, Math.Max(G, B)) + Math.Min(R, Math.Min(G, B))) / 510f;
    }

    /// <summary>Tells whether both colours have the same parts and are both set.</summary>
    /// <param name="other">The colour to compare with.</param>
    /// <returns>Whether both colours have the same parts and are both set.</returns>
    public bool Equals(Color other) => _argb == other._argb && _isSet == other._isSet;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => obj is Color other && Equals(other);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(_argb, _isSet);

    /// <inheritdoc/>
    public override string ToString() => _isSet ? $"Color [{Name}]" : "Color [Empty]";

    private static uint Part(int value, string name)
    {
        if ((uint)value > 255)
        {
            throw Verify.OutOfRange(name, value, "A part of a colour is 0 to 255.");
        }

        return (uint)value;
    }

    private static string? FindName(uint argb)
    {
        foreach ((string name, uint known) in KnownNames)
        {
            if (known == argb)
            {
                return name;
            }
        }

        return null;
    }
}
