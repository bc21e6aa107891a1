using System;
using System.Collections.Generic;
using Korvan.CAD.Exif;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster;

/// <summary>One picture of a file.</summary>
internal sealed class DecodedFrame : IDisposable
{
    internal required PixelGrid Pixels { get; init; }

    /// <summary>Pixels an inch; 0 where the file states none.</summary>
    internal double HorizontalResolution { get; init; }

    internal double VerticalResolution { get; init; }

    /// <summary>Bits that the file has for a pixel.</summary>
    internal int BitsPerPixel { get; init; } = 24;

    internal IColorPalette? Palette { get; init; }

    internal string Title { get; init; } = "";

    public void Dispose() => Pixels.Dispose();
}

/// <summary>What a raster file holds.</summary>
internal sealed class DecodedFile
{
    internal required FileFormat Format { get; init; }

    internal required List<DecodedFrame> Frames { get; init; }

    internal ExifData? Exif { get; init; }

    internal XmpPacketWrapper? Xmp { get; init; }
}

/// <summary>The bytes of a file, and the name that messages call it by.</summary>
internal sealed record RasterSource(byte[] Data, string Name, bool Lenient)
{
    /// <summary>The colour of pixels that the file does not hold; nothing for that of its format.</summary>
    internal int? Background { get; init; }

    /// <summary>Pixels to read into, which have the colour of those that may be missing.</summary>
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
