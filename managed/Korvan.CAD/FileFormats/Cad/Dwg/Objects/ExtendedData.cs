using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads the extended data of objects: for each program values of a group code less 1000 and whole bytes.
/// Source: Open Design Specification for .dwg files, 5.4.1, chapter 28.</summary>
internal static class ExtendedData
{
    private const int FirstCode = 1000;
    private const int AxisStep = 10;
    private const int HandleLength = 8;

    /// <summary>Reads all extended data of an object.</summary>
    /// <param name="bits">The record; after it what follows.</param>
    /// <param name="target">The object; null to pass over.</param>
    /// <param name="format">What the strings of the file are.</param>
    internal static void Read(ref BitReader bits, CadBaseObject? target, RecordFormat format)
    {
        StoredXdata? last = null;
        for (int size = (ushort)bits.BitShort(); size != 0; size = (ushort)bits.BitShort())
        {
            ulong application = bits.Handle().Value;
            if (target is null)
            {
                bits.VerifyCount(size, 8);
                bits.Position += (long)size << 3;
                continue;
            }

            long place = bits.Position;
            StoredXdata xdata = new(application, bits.Bytes((long)size), format);
            if (!IsWhole(xdata.Data, format))
            {
                throw new DwgFault(place, $"extended data of {xdata.Name} ends within a value");
            }

            if (last is null)
            {
                target.Defer(xdata);
            }
            else
            {
                last.Next = xdata;
            }

            last = xdata;
        }
    }

    /// <summary>Adds the values of a program to a list.</summary>
    /// <param name="data">The values, which are whole.</param>
    /// <param name="items">The list.</param>
    /// <param name="format">What the strings of the file are.</param>
    internal static void ReadItems(ReadOnlySpan<byte> data, IList<CadCodeValue> items, RecordFormat format)
    {
        while (!data.IsEmpty)
        {
            int code = data[0];
            int length = LengthOf(code, data[1..], format);
            Add(code, data.Slice(1, length), items, format);
            data = data[(1 + length)..];
        }
    }

    private static bool IsWhole(ReadOnlySpan<byte> data, RecordFormat format)
    {
        while (!data.IsEmpty)
        {
            int length = LengthOf(data[0], data[1..], format);
            if (length < 0 || length > data.Length - 1)
            {
                return false;
            }

            data = data[(1 + length)..];
        }

        return true;
    }

    private static int LengthOf(int code, ReadOnlySpan<byte> rest, RecordFormat format) => code switch
    {
        0 or 1 when format.HasUnicode => rest.Length < 2 ? -1 : 2 + (2 * BinaryPrimitives.ReadUInt16LittleEndian(rest)),
        0 or 1 => rest.Length < 3 ? -1 : 3 + rest[0],
        2 => 1,
        3 or 5 => HandleLength,
        4 => rest.IsEmpty ? -1 : 1 + rest[0],
        >= 10 and <= 15 => 3 * sizeof(double),
        >= 40 and <= 45 => sizeof(double),
        70 => sizeof(short),
        71 => sizeof(int),
        _ => -1,
    };

    private static void Add(int code, ReadOnlySpan<byte> value, IList<CadCodeValue> items, RecordFormat format)
    {
        switch (code)
        {
            case >= 10 and <= 15:
                for (int axis = 0; axis < 3; axis++)
                {
                    items.Add(new CadCodeValue(
                        FirstCode + code + (AxisStep * axis), Number(value[(axis * sizeof(double))..])));
                }

                break;
            case 4:
                items.Add(new CadBinaryCodeValue(FirstCode + code, Convert.ToHexString(value[1..])));
                break;
            default:
                items.Add(new CadCodeValue(FirstCode + code, TextOf(code, value, format)));
                break;
        }
    }

    private static string TextOf(int code, ReadOnlySpan<byte> value, RecordFormat format) => code switch
    {
        0 or 1 => RecordText.FromFile(
            format.HasUnicode ? Encoding.Unicode.GetString(value[2..]) : format.Encoding.GetString(value[3..])),
        2 => value[0] == 0 ? "{" : "}",
        3 => LayerName(BinaryPrimitives.ReadUInt64BigEndian(value), format),
        5 => BinaryPrimitives.ReadUInt64BigEndian(value).ToString("X", CultureInfo.InvariantCulture),
        70 => BinaryPrimitives.ReadInt16LittleEndian(value).ToString(CultureInfo.InvariantCulture),
        71 => BinaryPrimitives.ReadInt32LittleEndian(value).ToString(CultureInfo.InvariantCulture),
        _ => Number(value),
    };

    private static string LayerName(ulong handle, RecordFormat format) =>
        format.Names.Find(handle) ?? handle.ToString("X", CultureInfo.InvariantCulture);

    private static string Number(ReadOnlySpan<byte> value) =>
        BinaryPrimitives.ReadDoubleLittleEndian(value).ToString("R", CultureInfo.InvariantCulture);
}
