using System;
using System.Buffers.Binary;
using System.Globalization;
using System.IO;
using System.Numerics;
using System.Text;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes data elements in explicit VR little-endian (DICOM PS3.5, section 7).</summary>
internal sealed class DicomElementWriter(Stream output)
{
    internal void Text(uint tag, string type, string value)
    {
        byte[] data = Encoding.ASCII.GetBytes(value);
        bool odd = (data.Length & 1) != 0;
        Header(tag, type, data.Length + (odd ? 1 : 0));
        output.Write(data);
        if (odd)
        {
            output.WriteByte((byte)(type == "UI" ? 0 : ' '));
        }
    }

    internal void Number(uint tag, int value)
    {
        Header(tag, "US", 2);
        Span<byte> data = stackalloc byte[2];
        BinaryPrimitives.WriteUInt16LittleEndian(data, (ushort)value);
        output.Write(data);
    }

    internal void Bytes(uint tag, string type, ReadOnlySpan<byte> data)
    {
        Header(tag, type, data.Length + (data.Length & 1));
        output.Write(data);
        Pad(data.Length);
    }

    /// <summary>Writes the header of an element whose value follows; a length of all ones means undefined
    /// length.</summary>
    internal void Header(uint tag, string type, long length)
    {
        bool wide = type is "OB" or "OW" or "UT" or "SQ";
        Span<byte> header = stackalloc byte[wide ? 12 : 8];
        Tag(header, tag);
        Encoding.ASCII.GetBytes(type, header[4..]);
        if (wide)
        {
            header[6..8].Clear();
            BinaryPrimitives.WriteUInt32LittleEndian(header[8..], (uint)length);
        }
        else
        {
            BinaryPrimitives.WriteUInt16LittleEndian(header[6..], checked((ushort)length));
        }

        output.Write(header);
    }

    /// <summary>Writes an item of a sequence, or a delimiter.</summary>
    internal void Item(uint tag, ReadOnlySpan<byte> data)
    {
        Span<byte> header = stackalloc byte[8];
        Tag(header, tag);
        BinaryPrimitives.WriteUInt32LittleEndian(header[4..], (uint)(data.Length + (data.Length & 1)));
        output.Write(header);
        output.Write(data);
        Pad(data.Length);
    }

    internal void Pad(long length)
    {
        if ((length & 1) != 0)
        {
            output.WriteByte(0);
        }
    }

    /// <summary>Returns a new identifier that needs no registration: a UUID below 2.25 (PS3.5, annex B.2).</summary>
    internal static string NewIdentifier()
    {
        byte[] identifier = Guid.NewGuid().ToByteArray(bigEndian: true);
        identifier[0] |= 0x80; // always 39 digits, so that files of one image have one size
        var number = new BigInteger(identifier, isUnsigned: true, isBigEndian: true);
        return "2.25." + number.ToString(CultureInfo.InvariantCulture);
    }

    private static void Tag(Span<byte> to, uint tag)
    {
        BinaryPrimitives.WriteUInt16LittleEndian(to, (ushort)(tag >> 16));
        BinaryPrimitives.WriteUInt16LittleEndian(to[2..], (ushort)tag);
    }
}
