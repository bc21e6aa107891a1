using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Writes the binary form of the data of a modeler (SAB), as <see cref="SabReader"/> reads it.</summary>
internal sealed class SabWriter
{
    private readonly List<byte> _bytes = [];

    internal static byte[] Write(AcisFile file)
    {
        SabWriter writer = new();
        writer._bytes.AddRange(file.Version > AcisVersions.Successor ? "ASM BinaryFile4"u8 : "ACIS BinaryFile"u8);
        foreach (int count in (ReadOnlySpan<int>)[file.Version, 0, file.RootCount, file.Flags])
        {
            writer.Int32(count);
        }

        file.Header.ForEach(writer.Write);
        foreach (AcisRecord record in file.Records)
        {
            writer.Keyword(record.Type);
            record.Tokens.ForEach(writer.Write);
            writer._bytes.Add((byte)SabKind.End);
        }

        writer.Keyword($"End-of-{AcisVersions.ModelerOf(file.Version)}-data");
        return [.. writer._bytes];
    }

    private void Write(AcisToken token)
    {
        switch (token.Kind)
        {
            case AcisKind.Integer or AcisKind.Pointer or AcisKind.Enumeration:
                _bytes.Add((byte)(token.Kind switch
                {
                    AcisKind.Integer => SabKind.Integer,
                    AcisKind.Pointer => SabKind.Pointer,
                    _ => SabKind.Enumeration,
                }));
                Int32((int)token.Number);
                break;
            case AcisKind.LongInteger:
                _bytes.Add((byte)SabKind.LongInteger);
                _bytes.AddRange(BitConverter.GetBytes(token.Number));
                break;
            case AcisKind.Double:
                Numbers(SabKind.Double, token.Value, 1);
                break;
            case AcisKind.Position:
                Numbers(SabKind.Position, token.Value, 3);
                break;
            case AcisKind.Vector:
                Numbers(SabKind.Vector, token.Value, 3);
                break;
            case AcisKind.Parameters:
                Numbers(SabKind.Parameters, token.Value, 2);
                break;
            case AcisKind.Keyword:
                Keyword(token.Text);
                break;
            case AcisKind.String:
                String(token.Text);
                break;
            default:
                _bytes.Add((byte)(token.Kind switch
                {
                    AcisKind.True => SabKind.True,
                    AcisKind.False => SabKind.False,
                    AcisKind.Open => SabKind.Open,
                    _ => SabKind.Close,
                }));
                break;
        }
    }

    private void Keyword(string name)
    {
        string[] parts = name.Split('-');
        for (int i = 0; i < parts.Length; i++)
        {
            byte[] text = Encoding.Latin1.GetBytes(parts[i]);
            int length = Math.Min(text.Length, byte.MaxValue);
            _bytes.Add((byte)(i < parts.Length - 1 ? SabKind.KeywordPart : SabKind.Keyword));
            _bytes.Add((byte)length);
            _bytes.AddRange(text.AsSpan(0, length));
        }
    }

    private void String(string value)
    {
        byte[] text = Encoding.Latin1.GetBytes(value);
        if (text.Length <= byte.MaxValue)
        {
            _bytes.AddRange([(byte)SabKind.String8, (byte)text.Length]);
        }
        else
        {
            _bytes.Add((byte)SabKind.String32);
            Int32(text.Length);
        }

        _bytes.AddRange(text);
    }

    private void Numbers(SabKind kind, Vec3 value, int count)
    {
        _bytes.Add((byte)kind);
        foreach (double number in ((ReadOnlySpan<double>)[value.X, value.Y, value.Z])[..count])
        {
            _bytes.AddRange(BitConverter.GetBytes(number));
        }
    }

    private void Int32(int value)
    {
        Span<byte> bytes = stackalloc byte[sizeof(int)];
        BinaryPrimitives.WriteInt32LittleEndian(bytes, value);
        _bytes.AddRange(bytes);
    }
}
