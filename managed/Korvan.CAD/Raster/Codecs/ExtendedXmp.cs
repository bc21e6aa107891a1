using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Text;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>XMP metadata in JPEG (ISO 16684-3): one segment with the packet or, where that is too long, a short packet
/// that names the digest of the whole, which follows in parts.</summary>
internal static class ExtendedXmp
{
    private const string NoteNamespace = "http://ns.adobe.com/xmp/note/";
    private const string DigestName = "HasExtendedXMP";
    private const int DigestLength = 32;
    private const int NumbersLength = 8;
    private const int MaxPartLength = 65_400;
    private const int MaxLength = 16 << 20;

    private static ReadOnlySpan<byte> PartSignature => "http://ns.adobe.com/xmp/extension/\0"u8;

    /// <summary>Returns the segments of a packet.</summary>
    internal static IEnumerable<JpegSegment> Segments(XmpPacketWrapper xmp)
    {
        byte[] packet = xmp.ToBytes();
        if (packet.Length + JpegSegments.XmpSignature.Length <= JpegSegments.MaxSegmentBytes)
        {
            yield return new JpegSegment(JpegSegments.App1, [.. JpegSegments.XmpSignature, .. packet]);
            yield break;
        }

        byte[] whole = Encoding.UTF8.GetBytes(xmp.ToXml());
        string digest = Convert.ToHexString(Md5.Digest(whole));
        var note = new XmpPacketWrapper();
        note.SetValue(NoteNamespace, DigestName, digest);
        yield return new JpegSegment(JpegSegments.App1, [.. JpegSegments.XmpSignature, .. note.ToBytes()]);
        for (int start = 0; start < whole.Length; start += MaxPartLength)
        {
            int end = Math.Min(whole.Length, start + MaxPartLength);
            var numbers = new byte[NumbersLength];
            BinaryPrimitives.WriteInt32BigEndian(numbers, whole.Length);
            BinaryPrimitives.WriteInt32BigEndian(numbers.AsSpan(4), start);
            yield return new JpegSegment(
                JpegSegments.App1,
                [.. PartSignature, .. Encoding.ASCII.GetBytes(digest), .. numbers, .. whole[start..end]]);
        }
    }

    /// <summary>Returns the packet of segments; <see langword="null"/> for none and for one that is damaged.</summary>
    internal static XmpPacketWrapper? Read(List<JpegSegment> segments)
    {
        XmpPacketWrapper? packet = XmpPacketWrapper.TryRead(
            JpegSegments.Find(segments, JpegSegments.App1, JpegSegments.XmpSignature));
        if (packet?.GetValue(NoteNamespace, DigestName) is not { Length: DigestLength } digest
            || Whole(segments, Encoding.ASCII.GetBytes(digest)) is not { } data
            || XmpPacketWrapper.TryRead(data) is not { } whole)
        {
            return packet;
        }

        packet.Remove(NoteNamespace, DigestName);
        whole.Append(packet);
        return whole;
    }

    // The parts may come in any order.
    private static byte[]? Whole(List<JpegSegment> segments, byte[] digest)
    {
        byte[] start = [.. PartSignature, .. digest];
        byte[]? whole = null;
        int filled = 0;
        foreach (JpegSegment segment in segments)
        {
            if (segment.Data.Length < start.Length + NumbersLength || !segment.Data.AsSpan().StartsWith(start))
            {
                continue;
            }

            ReadOnlySpan<byte> rest = segment.Data.AsSpan(start.Length);
            uint length = BinaryPrimitives.ReadUInt32BigEndian(rest);
            uint offset = BinaryPrimitives.ReadUInt32BigEndian(rest[4..]);
            ReadOnlySpan<byte> part = rest[NumbersLength..];
            whole ??= length <= MaxLength ? new byte[length] : [];
            if (length != whole.Length || offset + (ulong)part.Length > length)
            {
                return null;
            }

            part.CopyTo(whole.AsSpan((int)offset));
            filled += part.Length;
        }

        return whole?.Length == filled ? whole : null;
    }
}
