using System;
using System.Collections.Generic;
using Korvan.CAD.Exif;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster;

/// <summary>One page or frame of a file.</summary>
internal sealed class DecodedFrame : IDisposable
{
    internal required PixelGrid Pixels { get; init; }

    /// <summary>Gets the pixels per inch; 0 where the file states none.</summary>
    internal double HorizontalResolution { get; init; }

    internal double VerticalResolution { get; init; }

    /// <summary>Gets the bits per pixel in the file.</summary>
    internal int BitsPerPixel { get; init; } = 24;

    internal IColorPalette? Palette { get; init; }

    internal string Title { get; init; } = "";

    public void Dispose() => Pixels.Dispose();
}

/// <summary>The content of a raster file.</summary>
internal sealed class DecodedFile
{
    internal required FileFormat Format { get; init; }

    internal required List<DecodedFrame> Frames { get; init; }

    internal ExifData? Exif { get; init; }

    internal XmpPacketWrapper? Xmp { get; init; }
}

/// <summary>The bytes of a file, and its name in messages.</summary>
internal sealed record RasterSource(byte[] Data, string Name, bool Lenient)
{
    /// <summary>Gets the colour of missing pixels; null for the default of the format.</summary>
    internal int? Background { get; init; }

    /// <summary>Returns pixels to read into, filled with the colour of missing pixels.</summary>
    internal PixelGrid NewGrid(int width, int height)
    {
        var pixels = new PixelGrid(width, height);
        if (Lenient && Background is int color)
        {
            pixels.Fill(color);
        }

        return pixels;
    }

    internal ReadOnlySpan<byte> Bytes => Data;
}
