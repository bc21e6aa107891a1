using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Jpeg;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads JPEG files.</summary>
internal static class JpegReader
{
    internal static DecodedFile Read(RasterSource source)
    {
        List<JpegSegment> segments = JpegSegments.Read(source.Bytes);
        PixelGrid pixels = JpegCodec.Decompress(source, source.Bytes, out int bits);
        (double x, double y) = Density(segments);
        var frame = new DecodedFrame { Pixels = pixels, BitsPerPixel = bits, HorizontalResolution = x, VerticalResolution = y };
        return new DecodedFile { Format = FileFormat.Jpeg, Frames = [frame] };
    }

    private static (double X, double Y) Density(List<JpegSegment> segments)
    {
        int at = segments.FindIndex(static s => s.Marker == JpegSegments.App0 && s.Data.AsSpan().StartsWith("JFIF\0"u8) && s.Data.Length >= 12);
        if (at < 0)
        {
            return default;
        }

        ReadOnlySpan<byte> data = segments[at].Data;
        double per = (JfifDensityUnits)data[7] switch { JfifDensityUnits.PixelsPerInch => 1, JfifDensityUnits.PixelsPerCm => 2.54, _ => 0 };
        return (BinaryPrimitives.ReadUInt16BigEndian(data[8..]) * per, BinaryPrimitives.ReadUInt16BigEndian(data[10..]) * per);
    }
}
