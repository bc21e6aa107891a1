using System;
using System.Runtime.InteropServices;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Decoded pixels: blue first, alpha multiplied in.</summary>
internal sealed record ImagePixels(int Width, int Height, byte[] Pixels)
{
    /// <summary>The first page of an image file, as far as it can be read; null for a format that has no
    /// reader.</summary>
    internal static ImagePixels? Decode(byte[] data, string name)
    {
        if (RasterCodecs.Detect(data) is not { } codec)
        {
            return null;
        }

        DecodedFile decoded = codec.Decode(data, name, lenient: true);
        ImagePixels image = From(decoded.Frames[0].Pixels);
        decoded.Frames.ForEach(static frame => frame.Dispose());
        return image;
    }

    /// <summary>Copies pixels; those of the grid have their opacity multiplied in from then on.</summary>
    internal static ImagePixels From(PixelGrid pixels)
    {
        var bytes = new byte[checked((int)(pixels.Count * 4))];
        for (int y = 0; y < pixels.Height; y++)
        {
            Span<int> row = pixels.Row(y);
            foreach (ref int pixel in row)
            {
                int alpha = pixel >>> 24;
                pixel = alpha == 255 ? pixel : BitPacking.Premultiply(pixel, alpha);
            }

            MemoryMarshal.AsBytes(row).CopyTo(bytes.AsSpan(y * pixels.Width * 4));
        }

        return new ImagePixels(pixels.Width, pixels.Height, bytes);
    }
}
