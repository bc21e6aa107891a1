using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes whole JPEG files: JFIF 1.02 with density and comment.</summary>
internal static class JpegWriter
{
    internal static void Write(RasterPageData page, JpegOptions options, Stream output)
    {
        bool progressive = options.CompressionType == JpegCompressionMode.Progressive;
        byte[] Compress(int quality) => LongCall.Run(
            () => JpegCodec.Compress(page.Pixels, options.ColorType, quality, progressive), null,
            page.Pixels.Lifetime);
        byte[] jpeg = options.RdOptSettings?.Optimize(page.Pixels.Count, Compress) ?? Compress(options.Quality);
        JpegSegments.Write(jpeg, Segments(page, options), output);
    }

    private static IEnumerable<JpegSegment> Segments(RasterPageData page, JpegOptions options)
    {
        // JFIF has only grayscale and Y'CbCr; CMYK files keep the APP14 segment that the codec writes.
        if (options.ColorType != JpegCompressionColorMode.Ycck)
        {
            JFIFData head = options.Jfif ?? JFIFData.Of(page.HorizontalResolution, page.VerticalResolution);
            yield return new JpegSegment(JpegSegments.App0, head.Write());
        }

        if ((options.ExifData ?? page.Exif) is ExifData exif)
        {
            byte[] data = [.. JpegSegments.ExifSignature, .. exif.SerializeData()];

            // What comes along with an image does not keep its pixels from being saved.
            if (data.Length <= JpegSegments.MaxSegmentBytes || options.ExifData is not null)
            {
                yield return new JpegSegment(JpegSegments.App1, data);
            }
        }

        if ((options.XmpData ?? page.Xmp) is XmpPacketWrapper xmp)
        {
            foreach (JpegSegment segment in ExtendedXmp.Segments(xmp))
            {
                yield return segment;
            }
        }

        if (options.Comment.Length > 0)
        {
            yield return new JpegSegment(JpegSegments.Comment, Encoding.UTF8.GetBytes(options.Comment));
        }
    }
}
