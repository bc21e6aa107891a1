using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads the values of an XRECORD: each after its group code, which tells its length. Source: Open Design
/// Specification for .dwg files, 5.4.1, section 20.4.104.</summary>
internal static class RecordTags
{
    private const int AxisStep = 10;

    /// <summary>Adds the values to a list.</summary>
    /// <exception cref="DwgFault">A value ends early.</exception>
    internal static void Read(ReadOnlySpan<byte> data, IList<CadCodeValue> tags, RecordFormat format)
    {
        while (data.Length >= sizeof(short))
        {
            ReadOnlySpan<byte> value = Next(ref data, format, out int code);
            Add(code, value, tags, format);
        }
    }

    /// <summary>Verifies that the values can be read.</summary>
    /// <exception cref="DwgFault">A value ends early.</exception>
    internal static void Verify(ReadOnlySpan<byte> data, RecordFormat format)
    {
        while (data.Length >= sizeof(short))
        {
            Next(ref data, format, out _);
        }
    }

    private static ReadOnlySpan<byte> Next(ref ReadOnlySpan<byte> data, RecordFormat format, out int code)
    {
        code = BinaryPrimitives.ReadInt16LittleEndian(data);
        data = data[sizeof(short)..];
        int length = LengthOf(code, data, format);
        if (length < 0 || length > data.Length)
        {
            throw new DwgFault(0, $"the value of group code {code} in a record ends early");
        }

        ReadOnlySpan<byte> value = data[..length];
        data = data[length..];
        return value;
    }

    private static int LengthOf(int code, ReadOnlySpan<byte> rest, RecordFormat format)
    {
        switch (KindOf(code))
        {
            case Kind.Text when rest.Length < 3:
                return rest.Length == 2 && format.HasUnicode ? 2 : -1;
            case Kind.Text:
                int characters = BinaryPrimitives.ReadUInt16LittleEndian(rest);
                return format.HasUnicode ? 2 + (2 * characters) : 3 + characters;
            case Kind.Binary:
                return rest.IsEmpty ? -1 : 1 + rest[0];
            case Kind.Point:
                return 3 * sizeof(double);
            case Kind.Byte:
                return 1;
            case Kind.Short:
                return sizeof(short);
            case Kind.Int:
                return sizeof(int);
            default:
                return sizeof(long);
        }
    }

    internal static Kind KindOf(int code) => code switch
    {
        < 0 => Kind.Handle,
        5 or 105 or (>= 320 and < 370) or (>= 390 and < 400) or (>= 480 and < 482) or 1005 => Kind.Handle,
        >= 10 and < 18 or (>= 110 and < 113) or (>= 210 and < 214) or (>= 1010 and < 1014) => Kind.Point,
        >= 10 and < 60 or (>= 110 and < 150) or (>= 210 and < 240) or (>= 460 and < 470)
            or (>= 1010 and < 1060) => Kind.Number,
        >= 160 and < 170 => Kind.Long,
        >= 60 and < 80 or (>= 170 and < 180) or (>= 270 and < 280) or (>= 370 and < 390) or (>= 400 and < 410)
            or (>= 1060 and < 1071) => Kind.Short,
        >= 90 and < 100 or (>= 420 and < 430) or (>= 440 and < 460) or 1071 => Kind.Int,
        >= 280 and < 300 => Kind.Byte,
        (>= 310 and < 320) or 1004 => Kind.Binary,
        _ => Kind.Text,
    };

    private static void Add(int code, ReadOnlySpan<byte> value, IList<CadCodeValue> tags, RecordFormat format)
    {
        switch (KindOf(code))
        {
            case Kind.Point:
                for (int axis = 0; axis < 3; axis++)
                {
                    tags.Add(new CadCodeValue(
                        code + (AxisStep * axis), Number(value[(axis * sizeof(double))..])));
                }

                break;
            case Kind.Binary:
                tags.Add(new CadBinaryCodeValue(code, Convert.ToHexString(value[1..])));
                break;
            case Kind.Number when code is >= 50 and < 59:
                double degrees = BinaryPrimitives.ReadDoubleLittleEndian(value) * 180 / Math.PI;
                tags.Add(new CadCodeValue(code, degrees.ToString("R", CultureInfo.InvariantCulture)));
                break;
            default:
                tags.Add(new CadCodeValue(code, TextOf(KindOf(code), value, format)));
                break;
        }
    }

    private static string TextOf(Kind kind, ReadOnlySpan<byte> value, RecordFormat format) => kind switch
    {
        Kind.Text => RecordText.FromFile(
            format.HasUnicode ? Encoding.Unicode.GetString(value[2..]) : format.Encoding.GetString(value[3..])),
        Kind.Number => Number(value),
        Kind.Byte => value[0].ToString(CultureInfo.InvariantCulture),
        Kind.Short => BinaryPrimitives.ReadInt16LittleEndian(value).ToString(CultureInfo.InvariantCulture),
        Kind.Int => BinaryPrimitives.ReadInt32LittleEndian(value).ToString(CultureInfo.InvariantCulture),
        Kind.Long => BinaryPrimitives.ReadInt64LittleEndian(value).ToString(CultureInfo.InvariantCulture),
        _ => BinaryPrimitives.ReadUInt64LittleEndian(value).ToString("X", CultureInfo.InvariantCulture),
    };

    private static string Number(ReadOnlySpan<byte> value) =>
        BinaryPrimitives.ReadDoubleLittleEndian(value).ToString("R", CultureInfo.InvariantCulture);

    internal enum Kind
    {
        Text,
        Number,
        Point,
        Byte,
        Short,
        Int,
        Long,
        Handle,
        Binary,
    }
}
