using System;
using System.Buffers.Binary;
using System.Globalization;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <content>Tags of binary files: each value in the form that its group code has there.</content>
internal sealed partial class DxfTagWriter
{
    private const int MaxChunk = 255;

    private bool IsBinary => layout != BinaryLayout.None;

    private void WriteBinary(int code, string value)
    {
        if (BinaryTags.HasBinaryValue(code))
        {
            WriteBinary(code, BytesOf(code, value));
        }
        else if (BinaryTags.IsDouble(code))
        {
            WriteBinary(code, NumberOf(code, value));
        }
        else if (!BinaryTags.IsText(code))
        {
            WriteBinary(code, long.TryParse(value, NumberStyles.Integer, CultureInfo.InvariantCulture, out long whole)
                ? whole
                : (long)NumberOf(code, value));
        }
        else
        {
            WriteBinaryCode(code);
            WriteText(value);
            Reserve(1);
            _buffer[_used++] = 0;
        }
    }

    private void WriteBinary(int code, long value)
    {
        if (BinaryTags.IsDouble(code))
        {
            WriteBinary(code, (double)value);
            return;
        }

        if (BinaryTags.IsText(code))
        {
            WriteBinary(code, value.ToString(CultureInfo.InvariantCulture));
            return;
        }

        WriteBinaryCode(code);
        Reserve(sizeof(long));
        BinaryPrimitives.WriteInt64LittleEndian(_buffer.AsSpan(_used), value);
        _used += BinaryTags.SizeOf(code);
    }

    private void WriteBinary(int code, double value)
    {
        if (!BinaryTags.IsDouble(code))
        {
            WriteBinary(code, value.ToString("R", CultureInfo.InvariantCulture));
            return;
        }

        WriteBinaryCode(code);
        Reserve(sizeof(double));
        BinaryPrimitives.WriteDoubleLittleEndian(_buffer.AsSpan(_used), value);
        _used += sizeof(double);
    }

    private void WriteBinary(int code, ReadOnlySpan<byte> bytes)
    {
        do
        {
            ReadOnlySpan<byte> chunk = bytes[..Math.Min(MaxChunk, bytes.Length)];
            bytes = bytes[chunk.Length..];
            WriteBinaryCode(code);
            Reserve(1 + MaxChunk);
            _buffer[_used++] = (byte)chunk.Length;
            chunk.CopyTo(_buffer.AsSpan(_used));
            _used += chunk.Length;
        }
        while (bytes.Length > 0);
    }

    private void WriteBinaryCode(int code)
    {
        const byte longCode = 255;
        Reserve(3);
        if (layout == BinaryLayout.ByteCodes)
        {
            _buffer[_used++] = (byte)Math.Min(code, longCode);
            if (code < longCode)
            {
                return;
            }
        }

        BinaryPrimitives.WriteInt16LittleEndian(_buffer.AsSpan(_used), (short)code);
        _used += sizeof(short);
    }

    private byte[] BytesOf(int code, string value)
    {
        try
        {
            return Convert.FromHexString(value.Trim());
        }
        catch (FormatException)
        {
            throw NoSuchValue(code, value, "hexadecimal digits");
        }
    }

    private double NumberOf(int code, string value) =>
        double.TryParse(value, NumberStyles.Float, CultureInfo.InvariantCulture, out double number)
            && double.IsFinite(number)
            ? number
            : throw NoSuchValue(code, value, "a finite number");

    private ImageSaveException NoSuchValue(int code, string value, string expected) => new(
        $"{Subject} has the value '{value}' for group code {code}; binary files hold {expected} there.");
}
