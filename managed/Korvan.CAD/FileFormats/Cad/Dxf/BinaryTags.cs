using System;
using System.Buffers.Binary;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>How a binary interchange file stores its group codes.</summary>
internal enum BinaryLayout
{
    /// <summary>The file is text.</summary>
    None,

    /// <summary>One byte, three for codes from 255 on: up to release 12.</summary>
    ByteCodes,

    /// <summary>Two bytes: from release 13 on.</summary>
    WordCodes,
}

/// <summary>Tags of binary interchange files.</summary>
internal static class BinaryTags
{
    private enum Kind
    {
        Text,
        Double,
        Int16,
        Int32,
        Int64,
        Byte,
        Chunk,
    }

    internal static ReadOnlySpan<byte> Sentinel => "AutoCAD Binary DXF\r\n\u001a\0"u8;

    internal static BinaryLayout Detect(ReadOnlySpan<byte> data)
    {
        if (!data.StartsWith(Sentinel))
        {
            return BinaryLayout.None;
        }

        // The first tag is code 0: a second zero byte belongs to the code.
        return data.Length > Sentinel.Length + 1 && data[Sentinel.Length + 1] == 0
            ? BinaryLayout.WordCodes
            : BinaryLayout.ByteCodes;
    }

    internal static bool HasBinaryValue(int code) => KindOf(code) == Kind.Chunk;

    internal static bool IsText(int code) => KindOf(code) == Kind.Text;

    internal static bool IsDouble(int code) => KindOf(code) == Kind.Double;

    /// <summary>Gets the number of bytes of a number; 0 for other values.</summary>
    internal static int SizeOf(int code) => SizeOf(KindOf(code));

    internal static bool TryTake(
        ReadOnlySpan<byte> data, BinaryLayout layout, ref int position, out int code, out int start,
        out int length)
    {
        (start, length) = (0, 0);
        if (!TryTakeCode(data, layout, ref position, out code))
        {
            return false;
        }

        Kind kind = KindOf(code);
        start = position;
        length = SizeOf(kind);
        if (kind == Kind.Text)
        {
            length = data[position..].IndexOf((byte)0);
            position += length + 1;
            return length >= 0;
        }

        if (kind == Kind.Chunk)
        {
            if (position >= data.Length)
            {
                return false;
            }

            length = data[position];
            start = ++position;
        }

        position += length;
        return position <= data.Length;
    }

    internal static double ToDouble(int code, ReadOnlySpan<byte> value)
    {
        return KindOf(code) == Kind.Double ? BinaryPrimitives.ReadDoubleLittleEndian(value) : ToLong(code, value);
    }

    internal static long ToLong(int code, ReadOnlySpan<byte> value) => KindOf(code) switch
    {
        Kind.Int16 => BinaryPrimitives.ReadInt16LittleEndian(value),
        Kind.Int32 => BinaryPrimitives.ReadInt32LittleEndian(value),
        Kind.Int64 => BinaryPrimitives.ReadInt64LittleEndian(value),
        Kind.Byte => value[0],
        Kind.Double => (long)BinaryPrimitives.ReadDoubleLittleEndian(value),
        _ => 0,
    };

    private static bool TryTakeCode(ReadOnlySpan<byte> data, BinaryLayout layout, ref int position, out int code)
    {
        ReadOnlySpan<byte> rest = data[position..];
        bool wide = layout == BinaryLayout.WordCodes || rest[0] == 255;
        int skip = wide && layout == BinaryLayout.ByteCodes ? 1 : 0;
        int size = wide ? 2 + skip : 1;
        code = 0;
        if (rest.Length < size)
        {
            return false;
        }

        code = wide ? BinaryPrimitives.ReadInt16LittleEndian(rest[skip..]) : rest[0];
        position += size;
        return true;
    }

    private static int SizeOf(Kind kind) => kind switch
    {
        Kind.Double or Kind.Int64 => 8,
        Kind.Int16 => 2,
        Kind.Int32 => 4,
        Kind.Byte => 1,
        _ => 0,
    };

    private static Kind KindOf(int code) => code switch
    {
        >= 10 and <= 59 or >= 110 and <= 149 or >= 210 and <= 239 or >= 460 and <= 469 or >= 1010 and <= 1059
            => Kind.Double,
        >= 60 and <= 79 or >= 170 and <= 179 or >= 270 and <= 289 or >= 370 and <= 389 or >= 400 and <= 409
            or >= 1060 and <= 1070 => Kind.Int16,
        >= 90 and <= 99 or >= 420 and <= 429 or >= 440 and <= 459 or 1071 => Kind.Int32,
        >= 160 and <= 169 => Kind.Int64,
        >= 290 and <= 299 => Kind.Byte,
        >= 310 and <= 319 or 1004 => Kind.Chunk,
        _ => Kind.Text,
    };
}
