using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes whole JPEG files: JFIF 1.02 with density and comment.</summary>
internal static class JpegWriter
{
    internal static void Write(RasterPageData page, JpegOptions options, Stream output)
    {
        bool progressive = options.CompressionType == JpegCompressionMode.Progressive;
        byte[] jpeg = JpegCodec.Compress(page.Pixels, options.ColorType, options.Quality, progressive);
        JpegSegments.Write(jpeg, Segments(page, options), output);
    }

    private static IEnumerable<JpegSegment> Segments(RasterPageData page, JpegOptions options)
    {
        // JFIF knows grey and Y'CbCr only; files of inks have the segment of their own that the codec writes.
        if (options.ColorType != JpegCompressionColorMode.Ycck)
        {
            yield return new JpegSegment(JpegSegments.App0, Jfif(page));
        }

        if (options.Comment.Length > 0)
        {
            yield return new JpegSegment(JpegSegments.Comment, Encoding.UTF8.GetBytes(options.Comment));
        }
    }

    private static byte[] Jfif(RasterPageData page)
    {
        byte[] data = [.. "JFIF\0"u8, 1, 2, (byte)JfifDensityUnits.PixelsPerInch, 0, 0, 0, 0, 0, 0];
        BinaryPrimitives.WriteUInt16BigEndian(data.AsSpan(8), Density(page.HorizontalResolution));
        BinaryPrimitives.WriteUInt16BigEndian(data.AsSpan(10), Density(page.VerticalResolution));
        return data;
    }

    private static ushort Density(double pixelsPerInch) => (ushort)Math.Clamp(Math.Round(pixelsPerInch), 1, ushort.MaxValue);
}
