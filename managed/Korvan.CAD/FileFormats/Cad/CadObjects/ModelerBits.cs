using System;
using System.Buffers.Binary;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the data of modelers as drawing databases have it: text in blocks, or binary data up to its own
/// end, and after it a wireframe, which is not kept. Source: Open Design Specification for .dwg files, 5.4.1, section
/// 20.4.41.</summary>
internal static class ModelerBits
{
    /// <summary>The version of data that is text.</summary>
    internal const int TextVersion = 1;

    /// <summary>The version of binary data.</summary>
    internal const int StoredVersion = 2;

    private const int MaxBlock = 4096;

    private static readonly byte[] EndOfAcis = "\u000E\u0003End\u000E\u0002of\u000E\u0004ACIS\r\u0004data"u8.ToArray();
    private static readonly byte[] EndOfAsm = "\u000E\u0003End\u000E\u0002of\u000E\u0003ASM\r\u0004data"u8.ToArray();

    internal static void ExchangeData(CadObjectWithAcisData solid, int version, BitExchange fields)
    {
        if (version != TextVersion)
        {
            byte[] data = fields.BytesUpTo(solid.DataRecord?.Data ?? [], EndOfAcis, EndOfAsm);
            solid.DataRecord = fields.IsReading ? CadAcdsRecord.Holding(data) : solid.DataRecord;
            return;
        }

        if (fields.IsReading)
        {
            ReadText(solid, fields);
        }
        else
        {
            WriteText(solid, fields);
        }
    }

    /// <summary>Carries an entity that a surface was made of, as its class and its own fields.</summary>
    internal static (int Class, byte[] Data) ExchangeProfile(BitExchange fields, int type, byte[] data)
    {
        type = fields.BitLong(type);
        return (type, ExchangeProfileData(fields, data));
    }

    /// <summary>Carries an entity that a solid was made of, or class 0 for none.</summary>
    internal static (int Class, byte[] Data) ExchangeOptionalProfile(BitExchange fields, int type, byte[] data)
    {
        type = fields.BitLong(data.Length == 0 && !fields.IsReading ? 0 : type);
        return (type, type == 0 ? [] : ExchangeProfileData(fields, data));
    }

    private static byte[] ExchangeProfileData(BitExchange fields, byte[] data)
    {
        const int bits = 8;
        int size = fields.CountLong(data.Length * bits);
        return size % bits == 0 ? fields.Bytes(data, size / bits)
            : throw fields.Fault($"the profile has {size} bits, which are no whole bytes");
    }

    internal static void ExchangeRest(CadObjectWithAcisData solid, int version, BitExchange fields)
    {
        // Solids with data in a section have an empty wireframe at least.
        if (fields.Bit(fields.HasStoredData))
        {
            PassWireframe(fields);
        }

        // Surfaces have the data of what they were before they were trimmed.
        bool isUntrimmed = solid.UntrimmedData.Length > 0 && version == StoredVersion && !fields.HasStoredData;
        if (!fields.Bit(!isUntrimmed))
        {
            fields.Bit(false);
            int form = fields.BitShort(StoredVersion);
            if (form == TextVersion)
            {
                throw fields.Fault("the second data of the modeler are text");
            }

            solid.UntrimmedData = fields.BytesUpTo(solid.UntrimmedData, EndOfAcis, EndOfAsm);
        }

        if (fields.Release >= 2007 && version > TextVersion)
        {
            for (int materials = fields.CountLong(0); materials > 0; materials--)
            {
                fields.BitLong(0);
                fields.BitLong(0);
                fields.Handle(HandleRole.HardPointer, 0);
            }
        }

        if (fields.Release >= 2013)
        {
            ExchangeRevision(solid, fields);
        }
    }

    private static void ExchangeRevision(CadObjectWithAcisData solid, BitExchange fields)
    {
        const int rest = 8;
        Span<byte> parts = stackalloc byte[16];
        (solid.Revision ?? Guid.Empty).TryWriteBytes(parts);
        bool hasRevision = fields.Bit(solid.Revision is not null);
        int major = fields.BitLong(BinaryPrimitives.ReadInt32LittleEndian(parts));
        short middle = (short)fields.BitShort(BinaryPrimitives.ReadInt16LittleEndian(parts[4..]));
        short minor = (short)fields.BitShort(BinaryPrimitives.ReadInt16LittleEndian(parts[6..]));
        byte[] end = fields.Bytes(parts[rest..].ToArray(), rest);
        fields.BitLong(0);
        solid.Revision = !fields.IsReading ? solid.Revision
            : hasRevision ? new Guid(major, middle, minor, end) : null;
    }

    private static void ReadText(CadObjectWithAcisData solid, BitExchange fields)
    {
        StringBuilder text = new();
        for (int size = fields.CountLong(0); size > 0; size = fields.CountLong(0))
        {
            text.Append(Encoding.Latin1.GetString(fields.Bytes([], size)));
        }

        // Text files have a blank after each caret, databases have none.
        string[] lines = text.ToString().Replace("\r", "").Replace("^", "^ ").Split('\n');
        solid.AcisData.AddRange(lines[^1].Length == 0 ? lines[..^1] : lines);
    }

    private static void WriteText(CadObjectWithAcisData solid, BitExchange fields)
    {
        string text = string.Concat(solid.GetTextData().Select(static line => line.Replace("^ ", "^") + "\r\n"));
        byte[] bytes = Encoding.Latin1.GetBytes(text);
        for (int at = 0; at < bytes.Length; at += MaxBlock)
        {
            int size = Math.Min(MaxBlock, bytes.Length - at);
            fields.Bytes(bytes[at..(at + size)], fields.CountLong(size));
        }

        fields.BitLong(0);
    }

    private static void PassWireframe(BitExchange fields)
    {
        const int isolines = 4;
        if (fields.Bit(true))
        {
            fields.Point3(new Cad3DPoint());
        }

        fields.BitLong(isolines);
        if (!fields.Bit(true))
        {
            return;
        }

        PassWires(fields);
        for (int silhouettes = fields.CountLong(0); silhouettes > 0; silhouettes--)
        {
            fields.BitLong(0);
            PassPoints(fields, 3);
            fields.Bit(false);
            if (fields.Bit(false))
            {
                PassWires(fields);
            }
        }
    }

    private static void PassWires(BitExchange fields)
    {
        for (int wires = fields.CountLong(0); wires > 0; wires--)
        {
            fields.RawByte(0);
            fields.BitLong(0);
            fields.BitShort(0);
            fields.BitLong(0);
            PassPoints(fields, fields.CountLong(0));
            if (fields.Bit(false))
            {
                PassPoints(fields, 4);
                fields.BitDouble(0);
                fields.Bit(false);
                fields.Bit(false);
                fields.Bit(false);
            }
        }
    }

    private static void PassPoints(BitExchange fields, int count)
    {
        Cad3DPoint point = new();
        for (int i = 0; i < count; i++)
        {
            fields.Point3(point);
        }
    }
}
