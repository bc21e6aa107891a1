using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Reads the binary form of the data of a modeler (SAB): tokens after a byte for their kind.</summary>
internal ref struct SabReader
{
    private const int SignatureLength = 15;
    private const int HeaderCounts = 4;

    private readonly ReadOnlySpan<byte> _data;
    private readonly int _wordLength;
    private readonly List<AcisToken> _tokens = [];
    private int _at;

    private SabReader(ReadOnlySpan<byte> data)
    {
        _data = data;
        _wordLength = data[SignatureLength - 1] == '8' ? sizeof(long) : sizeof(int);
        _at = SignatureLength;
    }

    internal static bool IsSab(ReadOnlySpan<byte> data) =>
        data.Length > SignatureLength + (HeaderCounts * sizeof(long))
            && (data.StartsWith("ASM BinaryFile"u8) || data.StartsWith("ACIS BinaryFile"u8));

    /// <summary>Returns the records up to the end, or to what is damaged.</summary>
    /// <param name="data">The data.</param>
    /// <param name="isWhole">Whether the end was found.</param>
    internal static AcisFile? Read(ReadOnlySpan<byte> data, out bool isWhole)
    {
        isWhole = false;
        if (!IsSab(data))
        {
            return null;
        }

        SabReader reader = new(data);
        int version = (int)reader.Integer(reader._wordLength);
        reader.Integer(reader._wordLength);
        int roots = (int)reader.Integer(reader._wordLength);
        int flags = (int)reader.Integer(reader._wordLength);
        AcisFile file = new() { Version = version, RootCount = roots, Flags = flags };
        isWhole = reader.ReadRecords(file);
        return file;
    }

    private bool ReadRecords(AcisFile file)
    {
        StringBuilder name = new();
        string type = "";
        while (_at < _data.Length)
        {
            var kind = (SabKind)_data[_at++];
            if (kind == SabKind.End)
            {
                file.Records.Add(new AcisRecord(type, [.. _tokens]));
                _tokens.Clear();
                type = "";
            }
            else if (kind == SabKind.KeywordPart)
            {
                name.Append(Text(sizeof(byte))).Append('-');
            }
            else if (kind == SabKind.Keyword && type.Length == 0)
            {
                type = name.Append(Text(sizeof(byte))).ToString();
                name.Clear();
                file.Header.AddRange(file.Records.Count == 0 ? _tokens : []);
                _tokens.Clear();
                if (type is "End-of-ACIS-data" or "End-of-ASM-data")
                {
                    return true;
                }
            }
            else if (!TryAdd(kind, name))
            {
                return false;
            }
        }

        return false;
    }

    private bool TryAdd(SabKind kind, StringBuilder name)
    {
        int length = LengthOf(kind);
        if (length < 0 || length > _data.Length - _at)
        {
            return false;
        }

        _tokens.Add(kind switch
        {
            SabKind.Character or SabKind.Int16 or SabKind.Integer => new AcisToken(
                AcisKind.Integer, Integer(length)),
            SabKind.LongInteger => new AcisToken(AcisKind.LongInteger, Integer(length)),
            SabKind.Enumeration => new AcisToken(AcisKind.Enumeration, Integer(length)),
            SabKind.Pointer => new AcisToken(AcisKind.Pointer, Integer(length)),
            SabKind.Single => AcisToken.Of(BinaryPrimitives.ReadSingleLittleEndian(Take(length))),
            SabKind.Double => AcisToken.Of(Double()),
            SabKind.Position => new AcisToken(AcisKind.Position, 0, new Vec3(Double(), Double(), Double())),
            SabKind.Vector => new AcisToken(AcisKind.Vector, 0, new Vec3(Double(), Double(), Double())),
            SabKind.Parameters => new AcisToken(AcisKind.Parameters, 0, new Vec3(Double(), Double(), 0)),
            SabKind.True => new AcisToken(AcisKind.True),
            SabKind.False => new AcisToken(AcisKind.False),
            SabKind.Open => new AcisToken(AcisKind.Open),
            SabKind.Close => new AcisToken(AcisKind.Close),
            SabKind.Keyword => new AcisToken(AcisKind.Keyword, 0, default, name.Append(Text(length)).ToString()),
            _ => new AcisToken(AcisKind.String, 0, default, Text(length)),
        });
        name.Clear();
        return true;
    }

    private readonly int LengthOf(SabKind kind) => kind switch
    {
        SabKind.Character or SabKind.String8 or SabKind.Keyword => sizeof(byte),
        SabKind.Int16 or SabKind.String16 => sizeof(short),
        SabKind.Single or SabKind.String32 or SabKind.LongString => sizeof(int),
        SabKind.Double or SabKind.LongInteger => sizeof(double),
        SabKind.Integer or SabKind.Pointer or SabKind.Enumeration => _wordLength,
        SabKind.Position or SabKind.Vector => 3 * sizeof(double),
        SabKind.Parameters => 2 * sizeof(double),
        SabKind.True or SabKind.False or SabKind.Open or SabKind.Close => 0,
        _ => -1,
    };

    private ReadOnlySpan<byte> Take(int length)
    {
        ReadOnlySpan<byte> taken = _data.Slice(_at, length);
        _at += length;
        return taken;
    }

    private double Double() => BinaryPrimitives.ReadDoubleLittleEndian(Take(sizeof(double)));

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
