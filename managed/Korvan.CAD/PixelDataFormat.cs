using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>A pixel format: the order and size of channels.</summary>
public sealed class PixelDataFormat : IEquatable<PixelDataFormat>
{
    private readonly int[] _channelBits;

    private PixelDataFormat(PixelFormat pixelFormat, params int[] channelBits)
    {
        PixelFormat = pixelFormat;
        _channelBits = channelBits;
        foreach (int bits in channelBits)
        {
            BitsPerPixel += bits;
        }
    }

    /// <summary>Gets palette indices of 1 bit; the first pixel is the highest bit.</summary>
    public static PixelDataFormat Rgb1BppIndexed { get; } = new(PixelFormat.Indexed, 1);

    /// <summary>Gets palette indices of 4 bits.</summary>
    public static PixelDataFormat Rgb4BppIndexed { get; } = new(PixelFormat.Indexed, 4);

    /// <summary>Gets palette indices of 8 bits.</summary>
    public static PixelDataFormat Rgb8BppIndexed { get; } = new(PixelFormat.Indexed, 8);

    /// <summary>Gets grayscale of 1 bit, 1 is white.</summary>
    public static PixelDataFormat Grayscale1Bpp { get; } = new(PixelFormat.Grayscale, 1);

    /// <summary>Gets grayscale of 4 bits.</summary>
    public static PixelDataFormat Grayscale4Bpp { get; } = new(PixelFormat.Grayscale, 4);

    /// <summary>Gets grayscale of 8 bits.</summary>
    public static PixelDataFormat Grayscale8Bpp { get; } = new(PixelFormat.Grayscale, 8);

    /// <summary>Gets grayscale of 16 bits, little-endian.</summary>
    public static PixelDataFormat Grayscale16Bpp { get; } = new(PixelFormat.Grayscale, 16);

    /// <summary>Gets 5 bits each of red, green and blue in 16 bits, little-endian.</summary>
    public static PixelDataFormat Rgb16Bpp555 { get; } = new(PixelFormat.Rgb, 5, 5, 5);

    /// <summary>Gets 5 bits of red, 6 of green and 5 of blue in 16 bits, little-endian.</summary>
    public static PixelDataFormat Rgb16Bpp565 { get; } = new(PixelFormat.Rgb, 5, 6, 5);

    /// <summary>Gets bytes of red, green and blue.</summary>
    public static PixelDataFormat Rgb24Bpp { get; } = new(PixelFormat.Rgb, 8, 8, 8);

    /// <summary>Gets bytes of blue, green and red.</summary>
    public static PixelDataFormat Bgr24Bpp { get; } = new(PixelFormat.Bgr, 8, 8, 8);

    /// <summary>Gets bytes of blue, green, red and alpha: a 32-bit ARGB value in memory.</summary>
    public static PixelDataFormat Rgb32Bpp { get; } = new(PixelFormat.Bgr | PixelFormat.Alpha, 8, 8, 8, 8);

    /// <summary>Gets bytes of red, green, blue and alpha.</summary>
    public static PixelDataFormat Rgba32Bpp { get; } = new(PixelFormat.Rgb | PixelFormat.Alpha, 8, 8, 8, 8);

    /// <summary>Gets bytes of cyan, magenta, yellow and black, 255 for full ink.</summary>
    public static PixelDataFormat Cmyk32Bpp { get; } = new(PixelFormat.Cmyk, 8, 8, 8, 8);

    /// <summary>Gets the meaning of the channels.</summary>
    public PixelFormat PixelFormat { get; }

    /// <summary>Gets the bits of all channels, without padding bits.</summary>
    public int BitsPerPixel { get; }

    /// <summary>Gets the number of channels.</summary>
    public int ChannelsCount => _channelBits.Length;

    /// <summary>Gets the bits of each channel.</summary>
    public int[] ChannelBits => (int[])_channelBits.Clone();

    /// <summary>Compares two formats.</summary>
    public static bool operator ==(PixelDataFormat? left, PixelDataFormat? right) =>
        left?.Equals(right) ?? right is null;

    /// <summary>Compares two formats.</summary>
    public static bool operator !=(PixelDataFormat? left, PixelDataFormat? right) => !(left == right);

    /// <summary>Returns a converter between rows of this format and ARGB values.</summary>
    /// <param name="palette">The palette of indexed pixels; <see langword="null"/> for formats without a
    /// palette.</param>
    /// <returns>The converter.</returns>
    /// <exception cref="FrameworkException">The format needs a palette, or the palette is too large.</exception>
    public IColorConverter CreateConverter(IColorPalette? palette) => ColorConverters.Create(this, palette);

    /// <summary>Determines whether another format has the same channels and the same bits in each.</summary>
    /// <param name="other">The other format.</param>
    /// <returns>Whether it is the same.</returns>
    public bool Equals(PixelDataFormat? other) =>
        other is not null && PixelFormat == other.PixelFormat
            && _channelBits.AsSpan().SequenceEqual(other._channelBits);

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as PixelDataFormat);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(PixelFormat, BitsPerPixel);

    /// <inheritdoc/>
    public override string ToString() => $"{PixelFormat}, {string.Join('-', _channelBits)} bits";

    internal int RowBytes(int width) =>
        checked((int)((((long)width * (BitsPerPixel == 15 ? 16 : BitsPerPixel)) + 7) / 8));
}
