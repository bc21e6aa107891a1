using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads JPEG files.</summary>
internal static class JpegReader
{
    internal static DecodedFile Read(RasterSource source)
    {
        List<JpegSegment> segments = JpegSegments.Read(source.Bytes);
        bool inverted = !JpegSegments.Find(segments, JpegSegments.App14, "Adobe"u8).IsEmpty;
        PixelGrid pixels = JpegCodec.Decompress(source, source.Bytes, inverted, out int bits);
        ReadOnlySpan<byte> jfif = JpegSegments.Find(segments, JpegSegments.App0, []);
        (double x, double y) = JFIFData.Read(jfif)?.PerInch() ?? default;
        return new DecodedFile
        {
            Format = FileFormat.Jpeg,
            Frames =
            [
                new DecodedFrame
                {
                    Pixels = pixels,
                    BitsPerPixel = bits,
                    HorizontalResolution = x,
                    VerticalResolution = y,
                },
            ],
            Exif = ReadExif(JpegSegments.Find(segments, JpegSegments.App1, JpegSegments.ExifSignature)),
            Xmp = ExtendedXmp.Read(segments),
        };
    }

    /// <summary>Reads Exif metadata; returns null where it is damaged, since an image can be shown without
    /// it.</summary>
    internal static JpegExifData? ReadExif(ReadOnlySpan<byte> data)
    {
        try
        {
            return data.IsEmpty ? null : new JpegExifData(data.ToArray());
        }
        catch (TiffImageException)
        {
            return null;
        }
    }
}
