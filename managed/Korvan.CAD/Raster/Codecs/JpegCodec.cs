using System;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Compresses and decompresses JPEG; metadata is read and written by <see cref="JpegSegments"/>.</summary>
internal static unsafe class JpegCodec
{
    private const int MaxSide = 65_500;

    /// <summary>A block of 8 × 8 pixels takes at least one bit, so a byte holds at most 512 pixels.</summary>
    private const long MaxPixelsPerByte = 512;

    /// <summary>Compresses opaque pixels.</summary>
    internal static byte[] Compress(PixelGrid pixels, JpegCompressionColorMode colors, int quality, bool progressive)
    {
        TurboJpeg.Require();
        if (pixels.Width > MaxSide || pixels.Height > MaxSide)
        {
            throw new JpegException(
                $"A JPEG holds at most {MaxSide} pixels on a side, not {pixels.Width} × {pixels.Height}.");
        }

        (TurboJpeg.PixelLayout layout, TurboJpeg.Subsampling subsampling) = colors switch
        {
            JpegCompressionColorMode.Grayscale => (TurboJpeg.PixelLayout.Bgrx, TurboJpeg.Subsampling.Gray),
            JpegCompressionColorMode.Ycck => (TurboJpeg.PixelLayout.Cmyk, TurboJpeg.Subsampling.None),
            _ when quality >= 90 => (TurboJpeg.PixelLayout.Bgrx, TurboJpeg.Subsampling.None),
            _ => (TurboJpeg.PixelLayout.Bgrx, TurboJpeg.Subsampling.Quarter),
        };
        using PixelGrid? isCmyk = colors == JpegCompressionColorMode.Ycck ? ToInvertedCmyk(pixels) : null;
        using TurboJpegHandle handle = TurboJpeg.InitCompress();
        int flags = progressive ? TurboJpeg.FlagProgressive : 0;
        nuint size = 0;
        int failure = TurboJpeg.Compress(
            handle, (isCmyk ?? pixels).Pointer, pixels.Width, 0, pixels.Height, layout, out TurboJpegBufferHandle jpeg,
            ref size, subsampling, quality, flags);
        using (jpeg)
        {
            return failure == 0
                ? jpeg.Bytes(size).ToArray()
                : throw new JpegException($"The image could not be compressed: {TurboJpeg.Error(handle)}.");
        }
    }

    /// <summary>Returns the pixels of a JPEG. <paramref name="bitsPerPixel"/> is 8 for grayscale, 24 for colours and 32
    /// for CMYK, which print programs store inverted.</summary>
    internal static PixelGrid Decompress(
        RasterSource source, ReadOnlySpan<byte> data, bool inverted, out int bitsPerPixel)
    {
        TurboJpeg.Require();
        using TurboJpegHandle handle = TurboJpeg.InitDecompress();
        fixed (byte* start = data)
        {
            return Decompress(handle, source, start, data.Length, inverted, out bitsPerPixel);
        }
    }

    private static PixelGrid Decompress(
        TurboJpegHandle handle, RasterSource source, byte* data, int length, bool inverted, out int bitsPerPixel)
    {
        int width = 0, height = 0, subsampling = 0, colors = -1;
        int failure = TurboJpeg.ReadHeader(handle, data, (nuint)length, &width, &height, &subsampling, &colors);

        // Non-standard sampling factors are reported as a failure, too, but can be decompressed.
        if (failure != 0 && (subsampling >= 0 || colors < 0))
        {
            throw new JpegException($"'{source.Name}' is no JPEG that can be read: {TurboJpeg.Error(handle)}.");
        }

        if (width < 1 || height < 1)
        {
            throw new JpegException($"'{source.Name}' is no JPEG that can be read: it ends before the frame header.");
        }

        if ((long)width * height > length * MaxPixelsPerByte)
        {
            throw new JpegException(
                $"'{source.Name}' claims {width} × {height} pixels, which its {length} bytes cannot hold.");
        }

        bool isCmyk = (TurboJpeg.Colors)colors is TurboJpeg.Colors.Cmyk or TurboJpeg.Colors.Ycck;
        bitsPerPixel = isCmyk ? 32 : (TurboJpeg.Colors)colors == TurboJpeg.Colors.Gray ? 8 : 24;
        using var room = new NativeRoom(JpegSegments.CoefficientBytes(new ReadOnlySpan<byte>(data, length)));
        var pixels = new PixelGrid(width, height);
        int flags = TurboJpeg.FlagLimitScans | (source.Lenient ? 0 : TurboJpeg.FlagStopOnWarning);
        TurboJpeg.PixelLayout layout = isCmyk ? TurboJpeg.PixelLayout.Cmyk : TurboJpeg.PixelLayout.Bgra;
        byte* target = pixels.WritablePointer;
        if (TurboJpeg.Decompress(handle, data, (nuint)length, target, width, 0, height, layout, flags) != 0
            && !source.Lenient)
        {
            pixels.Dispose();
            throw new JpegException($"The image of '{source.Name}' is damaged: {TurboJpeg.Error(handle)}.");
        }

        if (isCmyk)
        {
            FromCmyk(pixels, inverted);
        }

        return pixels;
    }

    /// <summary>Converts to the inverted CMYK that print programs write.</summary>
    private static PixelGrid ToInvertedCmyk(PixelGrid pixels)
    {
        var isCmyk = new PixelGrid(pixels.Width, pixels.Height);
        for (int y = 0; y < pixels.Height; y++)
        {
            Span<int> to = isCmyk.WritableRow(y);
            ReadOnlySpan<int> from = pixels.Row(y);
            for (int x = 0; x < to.Length; x++)
            {
                to[x] = ~CmykColor.FromArgb32(from[x]).ToStored();
            }
        }

        return isCmyk;
    }

    private static void FromCmyk(PixelGrid pixels, bool inverted)
    {
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (ref int pixel in pixels.WritableRow(y))
            {
                pixel = CmykColor.FromStored(inverted ? ~pixel : pixel).ToArgb32();
            }
        }
    }
}
