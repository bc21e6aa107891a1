using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Writes the values of an XRECORD, as <see cref="RecordTags"/> reads them.</summary>
internal static class RecordTagWriter
{
    private const int UnicodeStrings = 2007;
    private const int AxisStep = 10;
    private const int MaxBytes = 255;

    internal static byte[] Write(IList<CadCodeValue> tags, int first, int release, Encoding encoding)
    {
        MemoryStream data = new();
        BinaryWriter writer = new(data);
        for (int i = first; i < tags.Count; i++)
        {
            CadCodeValue tag = tags[i];
            writer.Write((short)tag.Attribute);
            if (RecordTags.KindOf(tag.Attribute) == RecordTags.Kind.Point)
            {
                for (int axis = 0; axis < 3; axis++)
                {
                    bool isNext = axis == 0
                        || (i + 1 < tags.Count && tags[i + 1].Attribute == tag.Attribute + (AxisStep * axis));
                    i += isNext && axis > 0 ? 1 : 0;
                    writer.Write(isNext ? Number(tags[i]) : 0);
                }

                continue;
            }

            Write(writer, tag, release, encoding);
        }

        return data.ToArray();
    }

    private static void Write(BinaryWriter writer, CadCodeValue tag, int release, Encoding encoding)
    {
        switch (RecordTags.KindOf(tag.Attribute))
        {
            case RecordTags.Kind.Text:
                WriteText(writer, RecordText.ToFile(tag.Value), release, encoding);
                break;
            case RecordTags.Kind.Number:
                bool isAngle = tag.Attribute is >= 50 and < 59;
                writer.Write(isAngle ? Number(tag) * Math.PI / 180 : Number(tag));
                break;
            case RecordTags.Kind.Byte:
                writer.Write((byte)Integer(tag));
                break;
            case RecordTags.Kind.Short:
                writer.Write((short)Integer(tag));
                break;
            case RecordTags.Kind.Int:
                writer.Write((int)Integer(tag));
                break;
            case RecordTags.Kind.Long:
                writer.Write(Integer(tag));
                break;
            case RecordTags.Kind.Binary:
                byte[] bytes = RecordText.ToBytes(tag.Value);
                writer.Write((byte)Math.Min(bytes.Length, MaxBytes));
                writer.Write(bytes.AsSpan(0, Math.Min(bytes.Length, MaxBytes)));
                break;
            default:
                writer.Write(HandleText.TryParse(tag.Value.Trim(), out ulong handle) ? handle : 0);
                break;
        }
    }

    private static void WriteText(BinaryWriter writer, string text, int release, Encoding encoding)
    {
        const byte codePage = 30;
        byte[] bytes = release >= UnicodeStrings ? Encoding.Unicode.GetBytes(text) : encoding.GetBytes(text);
        writer.Write((ushort)(release >= UnicodeStrings ? bytes.Length / 2 : bytes.Length));
        if (release < UnicodeStrings)
        {
            writer.Write(codePage);
        }

        writer.Write(bytes);
    }

    private static double Number(CadCodeValue tag) => double.TryParse(
        tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

    private static long Integer(CadCodeValue tag) => long.TryParse(
        tag.Value, NumberStyles.Integer, CultureInfo.InvariantCulture, out long value) ? value : 0;
}
