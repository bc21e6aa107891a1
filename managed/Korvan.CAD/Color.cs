using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>An RGB colour with alpha, 8 bits per component.</summary>
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

    /// <summary>Gets the alpha component, 0 (transparent) to 255 (opaque).</summary>
    public byte A => (byte)(_argb >> 24);

    /// <summary>Gets the red component, 0 to 255.</summary>
    public byte R => (byte)(_argb >> 16);

    /// <summary>Gets the green component, 0 to 255.</summary>
    public byte G => (byte)(_argb >> 8);

    /// <summary>Gets the blue component, 0 to 255.</summary>
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

    /// <summary>Returns the colour of a 32-bit ARGB value: alpha, red, green, blue from the highest byte on.</summary>
    /// <param name="argb">The value.</param>
    /// <returns>The colour.</returns>
    public static Color FromArgb(int argb) => new(unchecked((uint)argb));

    /// <summary>Returns a colour with another alpha component.</summary>
    /// <param name="alpha">The alpha component, 0 (transparent) to 255 (opaque).</param>
    /// <param name="baseColor">The colour whose red, green and blue are taken.</param>
    /// <returns>The colour.</returns>
    public static Color FromArgb(int alpha, Color baseColor)
    {
        return new Color((Part(alpha, nameof(alpha)) << 24) | (baseColor._argb & 0xFFFFFF));
    }

    /// <summary>Returns an opaque colour.</summary>
    /// <param name="red">The red component, 0 to 255.</param>
    /// <param name="green">The green component, 0 to 255.</param>
    /// <param name="blue">The blue component, 0 to 255.</param>
    /// <returns>The colour.</returns>
    public static Color FromArgb(int red, int green, int blue) => FromArgb(255, red, green, blue);

    /// <summary>Returns a colour of four components.</summary>
    /// <param name="alpha">The alpha component, 0 (transparent) to 255 (opaque).</param>
    /// <param name="red">The red component, 0 to 255.</param>
    /// <param name="green">The green component, 0 to 255.</param>
    /// <param name="blue">The blue component, 0 to 255.</param>
    /// <returns>The colour.</returns>
    public static Color FromArgb(int alpha, int red, int green, int blue)
    {
        return new Color(
            (Part(alpha, nameof(alpha)) << 24) | (Part(red, nameof(red)) << 16)
            | (Part(green, nameof(green)) << 8) | Part(blue, nameof(blue)));
    }

    /// <summary>Returns a named colour; case is ignored.</summary>
    /// <param name="name">The name, as in <c>"MidnightBlue"</c>.</param>
    /// <returns>The colour.</returns>
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

    /// <summary>Returns the 32-bit ARGB value: alpha, red, green, blue from the highest byte on.</summary>
    /// <returns>The ARGB value.</returns>
    public int ToArgb() => unchecked((int)_argb);

    /// <summary>Returns the HSL lightness, 0 (black) to 1 (white).</summary>
    /// <remarks>The mean of the largest and the smallest part, as in the HSL model.</remarks>
    /// <returns>The lightness.</returns>
    public float GetBrightness()
    {
        return (Math.Max(R, Math.Max(G, B)) + Math.Min(R, Math.Min(G, B))) / 510f;
    }

    /// <summary>Determines whether two colours have the same components and are both set.</summary>
    /// <param name="other">The colour to compare with.</param>
    /// <returns>Whether they are equal.</returns>
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
            throw Verify.OutOfRange(name, value, "A colour component is 0 to 255.");
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
