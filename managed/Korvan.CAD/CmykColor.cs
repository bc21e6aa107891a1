using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>A CMYK colour with 8 bits per ink: 0 for none, 255 for full.</summary>
public readonly struct CmykColor : IEquatable<CmykColor>
{
    /// <summary>Creates white (no ink).</summary>
    public CmykColor()
    {
    }

    /// <summary>Creates a colour from its inks.</summary>
    /// <param name="cyan">Cyan, 0 to 255.</param>
    /// <param name="magenta">Magenta, 0 to 255.</param>
    /// <param name="yellow">Yellow, 0 to 255.</param>
    /// <param name="black">Black, 0 to 255.</param>
    public CmykColor(int cyan, int magenta, int yellow, int black)
    {
        C = Verified(cyan, nameof(cyan));
        M = Verified(magenta, nameof(magenta));
        Y = Verified(yellow, nameof(yellow));
        K = Verified(black, nameof(black));
    }

    private CmykColor(byte cyan, byte magenta, byte yellow, byte black) =>
        (C, M, Y, K) = (cyan, magenta, yellow, black);

    /// <summary>Gets the cyan ink, 0 to 255.</summary>
    public byte C { get; }

    /// <summary>Gets the magenta ink, 0 to 255.</summary>
    public byte M { get; }

    /// <summary>Gets the yellow ink, 0 to 255.</summary>
    public byte Y { get; }

    /// <summary>Gets the black ink, 0 to 255.</summary>
    public byte K { get; }

    /// <summary>Compares two colours ink by ink.</summary>
    public static bool operator ==(CmykColor left, CmykColor right) => left.Equals(right);

    /// <summary>Compares two colours ink by ink.</summary>
    public static bool operator !=(CmykColor left, CmykColor right) => !left.Equals(right);

    /// <summary>Converts a colour to CMYK with maximum black; alpha is lost.</summary>
    /// <remarks>The uncalibrated rule of PostScript, with full black generation and undercolour removal.</remarks>
    /// <param name="color">The colour.</param>
    public static CmykColor FromColor(Color color) => FromArgb32(color.ToArgb());

    /// <summary>Returns the opaque RGB colour by the simple conversion, without colour profiles.</summary>
    /// <returns>The RGB colour.</returns>
    public Color ToColor() => Color.FromArgb(ToArgb32());

    /// <summary>Determines whether two colours have the same inks.</summary>
    /// <param name="other">The colour to compare with.</param>
    /// <returns>Whether both colours have the same inks.</returns>
    public bool Equals(CmykColor other) => C == other.C && M == other.M && Y == other.Y && K == other.K;

    /// <inheritdoc/>
    public override bool Equals(object? obj) => obj is CmykColor other && Equals(other);

    /// <inheritdoc/>
    public override int GetHashCode() => ToStored();

    /// <inheritdoc/>
    public override string ToString() => $"CmykColor({C}, {M}, {Y}, {K})";

    internal static CmykColor FromArgb32(int argb)
    {
        int r = (argb >> 16) & 255;
        int g = (argb >> 8) & 255;
        int b = argb & 255;
        int white = Math.Max(r, Math.Max(g, b));
        if (white == 0)
        {
            return new CmykColor((byte)0, (byte)0, (byte)0, (byte)255);
        }

        byte Ink(int part) => (byte)((((white - part) * 255) + (white / 2)) / white);
        return new CmykColor(Ink(r), Ink(g), Ink(b), (byte)(255 - white));
    }

    internal int ToArgb32()
    {
        int white = 255 - K;
        int Part(int ink) => (((255 - ink) * white) + 127) / 255;
        return Raster.Pixels.PixelGrid.Opaque | (Part(C) << 16) | (Part(M) << 8) | Part(Y);
    }

    /// <summary>Returns the inks as four bytes, cyan in the lowest.</summary>
    internal int ToStored() => C | (M << 8) | (Y << 16) | (K << 24);

    internal static CmykColor FromStored(int inks) =>
        new((byte)inks, (byte)(inks >> 8), (byte)(inks >> 16), (byte)(inks >> 24));

    private static byte Verified(int value, string name)
    {
        if ((uint)value > 255)
        {
            throw Verify.OutOfRange(name, value, "An ink is 0 to 255.");
        }

        return (byte)value;
    }
}
