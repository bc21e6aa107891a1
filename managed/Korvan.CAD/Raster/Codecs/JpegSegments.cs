using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>A segment of a JPEG: its marker's second byte and its content without the length.</summary>
internal readonly record struct JpegSegment(byte Marker, byte[] Data);

/// <summary>The segments before the first scan of a JPEG (ITU-T T.81, annex B).</summary>
internal static class JpegSegments
{
    internal const byte App0 = 0xE0;
    internal const byte App1 = 0xE1;
    internal const byte Comment = 0xFE;
    internal const int MaxSegmentBytes = 65_533;
    internal const byte App14 = 0xEE;
    private const byte StartOfScan = 0xDA;

    /// <summary>Gets the signature of an APP1 segment of Exif.</summary>
    internal static ReadOnlySpan<byte> ExifSignature => "Exif\0\0"u8;

    /// <summary>Gets the signature of an APP1 segment of XMP.</summary>
    internal static ReadOnlySpan<byte> XmpSignature => "http://ns.adobe.com/xap/1.0/\0"u8;

    /// <summary>Returns the content of the first segment with a signature, without the signature; empty for
    /// none.</summary>
    internal static ReadOnlySpan<byte> Find(List<JpegSegment> segments, byte marker, ReadOnlySpan<byte> signature)
    {
        foreach (JpegSegment segment in segments)
        {
            if (segment.Marker == marker && segment.Data.AsSpan().StartsWith(signature))
            {
                return segment.Data.AsSpan(signature.Length);
            }
        }

        return [];
    }

    /// <summary>Reads the segments before the first scan; stops where a segment is damaged.</summary>
    internal static List<JpegSegment> Read(ReadOnlySpan<byte> jpeg)
    {
        List<JpegSegment> segments = [];
        int at = 2;
        while (at + 4 <= jpeg.Length && jpeg[at] == 0xFF && jpeg[at + 1] != StartOfScan)
        {
            if (jpeg[at + 1] == 0xFF)
            {
                at++; // fill bytes may precede a marker
                continue;
            }

            int length = BinaryPrimitives.ReadUInt16BigEndian(jpeg[(at + 2)..]);
            if (length < 2 || at + 2 + length > jpeg.Length)
            {
                break;
            }

            segments.Add(new JpegSegment(jpeg[at + 1], jpeg.Slice(at + 4, length - 2).ToArray()));
            at += 2 + length;
        }

        return segments;
    }

    /// <summary>Returns the memory that a decoder takes for the coefficients of a whole image, in bytes. That of an
    /// image with one scan is 0, since it is decoded row by row.</summary>
    internal static long CoefficientBytes(ReadOnlySpan<byte> jpeg)
    {
        List<JpegSegment> segments = Read(jpeg);
        int at = segments.FindIndex(static one => IsFrame(one.Marker) && one.Data.Length >= 6);
        if (at < 0)
        {
            return 0;
        }

        byte[] frame = segments[at].Data;
        int count = Math.Min(frame[5], (frame.Length - 6) / 3);
        bool isWhole = segments[at].Marker is not (0xC2 or 0xC6 or 0xCA or 0xCE) && ComponentsOfScan(jpeg) >= count;
        return isWhole ? 0 : SamplesOf(frame, count) * sizeof(short);
    }

    // SOF0 to SOF15 without the tables DHT, JPG and DAC, which have markers of the same range.
    private static bool IsFrame(byte marker) => marker is >= 0xC0 and <= 0xCF and not (0xC4 or 0xC8 or 0xCC);

    private static int ComponentsOfScan(ReadOnlySpan<byte> jpeg)
    {
        int at = 2;
        while (at + 4 < jpeg.Length && jpeg[at] == 0xFF && jpeg[at + 1] != StartOfScan)
        {
            at += jpeg[at + 1] == 0xFF ? 1 : 2 + BinaryPrimitives.ReadUInt16BigEndian(jpeg[(at + 2)..]);
        }

        return at + 4 < jpeg.Length ? jpeg[at + 4] : 0;
    }

    // Samples of all components, each a whole number of blocks of 8 × 8.
    private static long SamplesOf(ReadOnlySpan<byte> frame, int count)
    {
        long height = BinaryPrimitives.ReadUInt16BigEndian(frame[1..]);
        long width = BinaryPrimitives.ReadUInt16BigEndian(frame[3..]);
        (int maxX, int maxY) = (1, 1);
        for (int i = 0; i < count; i++)
        {
            maxX = Math.Max(maxX, frame[7 + (3 * i)] >> 4);
            maxY = Math.Max(maxY, frame[7 + (3 * i)] & 15);
        }

        long samples = 0;
        for (int i = 0; i < count; i++)
        {
            int factors = frame[7 + (3 * i)];
            long columns = ((width * (factors >> 4)) + (8 * maxX) - 1) / (8 * maxX);
            long rows = ((height * (factors & 15)) + (8 * maxY) - 1) / (8 * maxY);
            samples += columns * rows * 64;
        }

        return samples;
    }

    /// <summary>Writes a JPEG whose own APP0 segment is replaced by the given segments.</summary>
    internal static void Write(ReadOnlySpan<byte> jpeg, IEnumerable<JpegSegment> segments, Stream output)
    {
        output.Write(jpeg[..2]);
        foreach (JpegSegment segment in segments)
        {
            if (segment.Data.Length > MaxSegmentBytes)
            {
                throw new JpegException(
                    $"A segment of a JPEG holds at most {MaxSegmentBytes} bytes; {segment.Data.Length} were given.");
            }

            Span<byte> header = [0xFF, segment.Marker, 0, 0];
            BinaryPrimitives.WriteUInt16BigEndian(header[2..], (ushort)(segment.Data.Length + 2));
            output.Write(header);
            output.Write(segment.Data);
        }

        bool own = jpeg[2] == 0xFF && jpeg[3] == App0;
        output.Write(own ? jpeg[(4 + BinaryPrimitives.ReadUInt16BigEndian(jpeg[4..]))..] : jpeg[2..]);
    }
}
