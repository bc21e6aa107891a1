using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Writes the extended data of objects, as <see cref="ExtendedData"/> reads it.</summary>
internal static class ExtendedDataWriter
{
    private const int FirstCode = 1000;
    private const int AxisStep = 10;
    private const int UnicodeStrings = 2007;
    private const int MaxBytes = 255;
    private const int RealCode = 40;

    internal static void Write(
        BitWriter bits, CadBaseObject item, int release, Encoding encoding, WrittenHandles handles)
    {
        const int hardPointer = 5;
        foreach (CadXdata xdata in item.XdataOrNull?.XdataEntities ?? [])
        {
            ulong application = handles.Application(xdata.RegisteredApplicationName);
            byte[] data = Pack(xdata.Data, release, encoding, handles);
            if (application != 0 && data.Length > ushort.MaxValue)
            {
                throw new DwgFault(bits.Position,
                    $"its extended data has {data.Length} bytes; at most {ushort.MaxValue} can be written");
            }

            if (application != 0 && data.Length > 0)
            {
                bits.BitShort(data.Length);
                bits.Handle(hardPointer, application);
                bits.Raw(data);
            }
        }

        bits.BitShort(0);
    }

    private static byte[] Pack(IList<CadCodeValue> tags, int release, Encoding encoding, WrittenHandles handles)
    {
        MemoryStream data = new();
        BinaryWriter writer = new(data);
        for (int i = 0; i < tags.Count; i++)
        {
            CadCodeValue tag = tags[i];
            int code = tag.Attribute - FirstCode;
            if (code is < 0 or 1 or > 71)
            {
                continue;
            }

            // A coordinate without the ones before it has no coding but that of numbers.
            code = IsCoded(code) ? code : RealCode;
            writer.Write((byte)code);
            if (code is >= 10 and <= 15)
            {
                writer.Write(Number(tag));
                for (int axis = 1; axis < 3; axis++)
                {
                    bool isNext = i + 1 < tags.Count && tags[i + 1].Attribute == tag.Attribute + (AxisStep * axis);
                    writer.Write(isNext ? Number(tags[++i]) : 0);
                }

                continue;
            }

            WriteValue(writer, code, tag, release, encoding, handles);
        }

        return data.ToArray();
    }

    private static bool IsCoded(int code) =>
        code is 0 or (>= 2 and <= 5) or (>= 10 and <= 15) or (>= 40 and <= 45) or 70 or 71;

    private static void WriteValue(
        BinaryWriter writer, int code, CadCodeValue tag, int release, Encoding encoding, WrittenHandles handles)
    {
        switch (code)
        {
            case 0:
                WriteText(writer, RecordText.ToFile(tag.Value), release, encoding);
                break;
            case 2:
                writer.Write((byte)(tag.Value.Trim() == "{" ? 0 : 1));
                break;
            case 3:
                WriteHandle(writer, handles.Find(SymbolTable.Layer, tag.Value));
                break;
            case 4:
                byte[] bytes = RecordText.ToBytes(tag.Value);
                writer.Write((byte)Math.Min(bytes.Length, MaxBytes));
                writer.Write(bytes.AsSpan(0, Math.Min(bytes.Length, MaxBytes)));
                break;
            case 5:
                WriteHandle(writer, HandleText.TryParse(tag.Value.Trim(), out ulong handle) ? handle : 0);
                break;
            case 70:
                writer.Write((short)Number(tag));
                break;
            case 71:
                writer.Write((int)Number(tag));
                break;
            default:
                writer.Write(Number(tag));
                break;
        }
    }

    private static void WriteText(BinaryWriter writer, string text, int release, Encoding encoding)
    {
        const byte codePage = 30;
        if (release >= UnicodeStrings)
        {
            writer.Write((ushort)text.Length);
            writer.Write(Encoding.Unicode.GetBytes(text));
            return;
        }

        byte[] bytes = encoding.GetBytes(text);
        int length = Math.Min(bytes.Length, MaxBytes);
        writer.Write((byte)length);
        writer.Write((byte)0);
        writer.Write(codePage);
        writer.Write(bytes.AsSpan(0, length));
    }

    private static void WriteHandle(BinaryWriter writer, ulong handle) =>
        writer.Write(BinaryPrimitives.ReverseEndianness(handle));

    private static double Number(CadCodeValue tag) => double.TryParse(
        tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;
}
