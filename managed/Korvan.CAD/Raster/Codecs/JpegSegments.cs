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
