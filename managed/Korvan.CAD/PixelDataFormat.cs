using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>How the channels of a pixel lie in bytes.</summary>
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

    /// <summary>Gets numbers of colours of 1 bit; the first pixel is the highest bit.</summary>
    public static PixelDataFormat Rgb1BppIndexed { get; } = new(PixelFormat.Indexed, 1);

    /// <summary>Gets numbers of colours of 4 bits.</summary>
    public static PixelDataFormat Rgb4BppIndexed { get; } = new(PixelFormat.Indexed, 4);

    /// <summary>Gets numbers of colours of 8 bits.</summary>
    public static PixelDataFormat Rgb8BppIndexed { get; } = new(PixelFormat.Indexed, 8);

    /// <summary>Gets lightness of 1 bit, 1 is white.</summary>
    public static PixelDataFormat Grayscale1Bpp { get; } = new(PixelFormat.Grayscale, 1);

    /// <summary>Gets lightness of 4 bits.</summary>
    public static PixelDataFormat Grayscale4Bpp { get; } = new(PixelFormat.Grayscale, 4);

    /// <summary>Gets lightness of 8 bits.</summary>
    public static PixelDataFormat Grayscale8Bpp { get; } = new(PixelFormat.Grayscale, 8);

    /// <summary>Gets lightness of 16 bits, lowest byte first.</summary>
    public static PixelDataFormat Grayscale16Bpp { get; } = new(PixelFormat.Grayscale, 16);

    /// <summary>Gets 5 bits each for red, green and blue in a word of 16 bits, lowest byte first.</summary>
    public static PixelDataFormat Rgb16Bpp555 { get; } = new(PixelFormat.Rgb, 5, 5, 5);

    /// <summary>Gets 5 bits for red, 6 for green, 5 for blue in a word of 16 bits, lowest byte first.</summary>
    public static PixelDataFormat Rgb16Bpp565 { get; } = new(PixelFormat.Rgb, 5, 6, 5);

    /// <summary>Gets bytes of red, green and blue.</summary>
    public static PixelDataFormat Rgb24Bpp { get; } = new(PixelFormat.Rgb, 8, 8, 8);

    /// <summary>Gets bytes of blue, green and red.</summary>
    public static PixelDataFormat Bgr24Bpp { get; } = new(PixelFormat.Bgr, 8, 8, 8);

    /// <summary>Gets bytes of blue, green, red and opacity: a 32-bit number of a colour in memory.</summary>
    public static PixelDataFormat Rgb32Bpp { get; } = new(PixelFormat.Bgr | PixelFormat.Alpha, 8, 8, 8, 8);

    /// <summary>Gets bytes of red, green, blue and opacity.</summary>
    public static PixelDataFormat Rgba32Bpp { get; } = new(PixelFormat.Rgb | PixelFormat.Alpha, 8, 8, 8, 8);

    /// <summary>Gets bytes of cyan, magenta, yellow and black, 255 for full ink.</summary>
    public static PixelDataFormat Cmyk32Bpp { get; } = new(PixelFormat.Cmyk, 8, 8, 8, 8);

    /// <summary>Gets what the channels mean.</summary>
    public PixelFormat PixelFormat { get; }

    /// <summary>Gets the bits of all channels; words of 16 bits may have one more.</summary>
    public int BitsPerPixel { get; }

    /// <summary>Gets how many channels there are.</summary>
    public int ChannelsCount => _channelBits.Length;

    /// <summary>Gets the bits of each channel.</summary>
    public int[] ChannelBits => (int[])_channelBits.Clone();

    /// <summary>Compares two forms.</summary>
    public static bool operator ==(PixelDataFormat? left, PixelDataFormat? right) => left?.Equals(right) ?? right is null;

    /// <summary>Compares two forms.</summary>
    public static bool operator !=(PixelDataFormat? left, PixelDataFormat? right) => !(left == right);

    /// <summary>Gives what turns rows of this form into colours, and back.</summary>
    /// <param name="palette">The colours that pixels are numbers of; nothing for forms without a palette.</param>
    /// <returns>What turns rows of this form into colours, and back.</returns>
    /// <exception cref="FrameworkException">The form needs a palette, or its palette is too large.</exception>
    public IColorConverter CreateConverter(IColorPalette? palette) => ColorConverters.Create(this, palette);

    /// <summary>Tells whether another form has the same pixel format and the same bits in each channel.</summary>
    /// <param name="other">The other form.</param>
    /// <returns>Whether it is the same.</returns>
    public bool Equals(PixelDataFormat? other) =>
        other is not null && PixelFormat == other.PixelFormat && _channelBits.AsSpan().SequenceEqual(other._channelBits);

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as PixelDataFormat);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(PixelFormat, BitsPerPixel);

    /// <inheritdoc/>
    public override string ToString() => $"{PixelFormat}, {string.Join('-', _channelBits)} bits";

    internal int RowBytes(int width) => checked((int)((((long)width * (BitsPerPixel == 15 ? 16 : BitsPerPixel)) + 7) / 8));
}
