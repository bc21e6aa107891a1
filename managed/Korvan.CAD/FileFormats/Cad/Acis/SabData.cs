using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// The binary form of the text of a solid modeler (SAB): the same tokens, each after a byte for its kind. Its records
/// are returned as those of the text.
/// </summary>
internal ref struct SabData
{
    private const int SignatureLength = 15;
    private const int HeaderCounts = 4;

    private readonly ReadOnlySpan<byte> _data;
    private readonly int _wordLength;
    private int _at;

    private SabData(ReadOnlySpan<byte> data)
    {
        _data = data;
        _wordLength = data[SignatureLength - 1] == '8' ? sizeof(long) : sizeof(int);
        _at = SignatureLength + (HeaderCounts * _wordLength);
    }

    // The kinds of tokens.
    private enum Kind
    {
        Character = 2,
        Int16 = 3,
        Integer = 4,
        Single = 5,
        Double = 6,
        String8 = 7,
        String16 = 8,
        String32 = 9,
        True = 10,
        False = 11,
        Pointer = 12,
        Type = 13,
        TypePart = 14,
        Open = 15,
        Close = 16,
        End = 17,
        LongString = 18,
        Position = 19,
        Vector = 20,
        Enumeration = 21,
        Parameters = 22,
    }

    internal static bool IsSab(ReadOnlySpan<byte> data) =>
        data.Length > SignatureLength + (HeaderCounts * sizeof(long))
            && (data.StartsWith("ASM BinaryFile"u8) || data.StartsWith("ACIS BinaryFile"u8));

    /// <summary>Returns the records up to the end, or to what is damaged.</summary>
    internal static List<SatRecord> Parse(ReadOnlySpan<byte> data)
    {
        List<SatRecord> records = [];
        if (!IsSab(data))
        {
            return records;
        }

        var reader = new SabData(data);
        List<string> tokens = [];
        var type = new StringBuilder();
        bool isHeader = true;
        while (reader._at < data.Length)
        {
            var kind = (Kind)data[reader._at++];
            if (isHeader && kind is (Kind.Type or Kind.TypePart))
            {
                isHeader = false;
                tokens.Clear();
            }

            if (kind == Kind.End)
            {
                records.Add(new SatRecord([.. tokens]));
                tokens.Clear();
            }
            else if (kind == Kind.TypePart)
            {
                type.Append(reader.Text(sizeof(byte))).Append('-');
            }
            else if (kind == Kind.Type)
            {
                tokens.Add(type.Append(reader.Text(sizeof(byte))).ToString());
                type.Clear();
            }
            else if (!reader.TryAdd(kind, tokens))
            {
                break;
            }
        }

        records.RemoveAll(static record => record.Tokens.Length == 0);
        return records;
    }

    private bool TryAdd(Kind kind, List<string> tokens)
    {
        int length = kind switch
        {
            Kind.Character => 1,
            Kind.Int16 => sizeof(short),
            Kind.Single => sizeof(float),
            Kind.Double => sizeof(double),
            Kind.Integer or Kind.Pointer or Kind.Enumeration => _wordLength,
            Kind.Position or Kind.Vector => 3 * sizeof(double),
            Kind.Parameters => 2 * sizeof(double),
            Kind.String8 => sizeof(byte),
            Kind.String16 => sizeof(ushort),
            Kind.String32 or Kind.LongString => sizeof(int),
            _ => 0,
        };
        if (length > _data.Length - _at)
        {
            return false;
        }

        switch (kind)
        {
            case Kind.Character or Kind.Int16 or Kind.Integer or Kind.Enumeration:
                tokens.Add(Integer(length).ToString(CultureInfo.InvariantCulture));
                break;
            case Kind.Pointer:
                tokens.Add(FormattableString.Invariant($"${Integer(length)}"));
                break;
            case Kind.Single:
                tokens.Add(Written(BinaryPrimitives.ReadSingleLittleEndian(Take(length))));
                break;
            case Kind.Double or Kind.Position or Kind.Vector or Kind.Parameters:
                for (int end = _at + length; _at < end;)
                {
                    tokens.Add(Written(BinaryPrimitives.ReadDoubleLittleEndian(Take(sizeof(double)))));
                }

                break;
            case Kind.String8 or Kind.String16 or Kind.String32 or Kind.LongString:
                tokens.Add(Text(length));
                break;
            case Kind.True or Kind.False:
                // Keywords of two values have no names here; that of directions is the one that matters.
                tokens.Add(kind == Kind.True ? "reversed" : "forward");
                break;
            case Kind.Open or Kind.Close:
                tokens.Add(kind == Kind.Open ? "{" : "}");
                break;
            default:
                return false;
        }

        return true;
    }

    private static string Written(double value) => value.ToString("R", CultureInfo.InvariantCulture);

    private ReadOnlySpan<byte> Take(int length)
    {
        ReadOnlySpan<byte> taken = _data.Slice(_at, length);
        _at += length;
        return taken;
    }

    private long Integer(int length)
    {
        ReadOnlySpan<byte> bytes = Take(length);
        return length switch
        {
            sizeof(byte) => bytes[0],
            sizeof(short) => BinaryPrimitives.ReadInt16LittleEndian(bytes),
            sizeof(int) => BinaryPrimitives.ReadInt32LittleEndian(bytes),
            _ => BinaryPrimitives.ReadInt64LittleEndian(bytes),
        };
    }

    /// <summary>Reads a string after its length; one that is longer than the rest ends with it.</summary>
    private string Text(int lengthBytes)
    {
        if (lengthBytes > _data.Length - _at)
        {
            _at = _data.Length;
            return "";
        }

        ReadOnlySpan<byte> stated = Take(lengthBytes);
        uint length = lengthBytes switch
        {
            sizeof(byte) => stated[0],
            sizeof(ushort) => BinaryPrimitives.ReadUInt16LittleEndian(stated),
            _ => BinaryPrimitives.ReadUInt32LittleEndian(stated),
        };
        return Encoding.Latin1.GetString(Take((int)Math.Min(length, _data.Length - _at)));
    }
}
