using System;
using System.Collections.Generic;
using System.Numerics;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Makes 128 bits of the fields of objects: the same for objects that are alike but for their identity.
/// Handles are left out; so are the names that programs give to the layouts of entities and to the blocks of
/// dimensions.</summary>
/// <param name="digits">The decimals that numbers are rounded to.</param>
internal sealed class DigestExchange(int digits) : ObjectExchange
{
    // Odd numbers without a pattern in their bits, so that a product depends on each bit below.
    private const ulong LowFactor = 0x9E3779B97F4A7C15;
    private const ulong HighFactor = 0xC2B2AE3D27D4EB4F;
    private const int HighTurn = 29;

    // The most that Math.Round takes.
    private const int MaxDigits = 15;
    private const int LayoutNameCode = 410;

    private readonly int _digits = Math.Clamp(digits, 0, MaxDigits);
    private ulong _low = LowFactor;
    private ulong _high = HighFactor;

    internal override int Release => int.MaxValue;

    internal override bool IsReading => false;

    internal (ulong Low, ulong High) Value => (_low, _high);

    internal void Restart() => (_low, _high) = (LowFactor, HighFactor);

    internal override void BeginSubclass(string name)
    {
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => isSet;

    internal override bool Bool(int code, bool value)
    {
        Add(code, value ? 1UL : 0);
        return value;
    }

    internal override short Int16(int code, short value)
    {
        Add(code, (ulong)value);
        return value;
    }

    internal override int Int32(int code, int value)
    {
        Add(code, (ulong)value);
        return value;
    }

    internal override long Int64(int code, long value)
    {
        Add(code, (ulong)value);
        return value;
    }

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value)
    {
        Add(code, BitConverter.DoubleToUInt64Bits(Math.Round(value, _digits) + 0.0));  // + 0.0 makes 0 of -0
        return value;
    }

    internal override double Angle(int code, double value) => Double(code, value);

    internal override void Point(int code, Cad2DPoint point)
    {
        Double(code, point.X);
        Double(code, point.Y);
    }

    internal override void Point(int code, Cad3DPoint point)
    {
        Double(code, point.X);
        Double(code, point.Y);
        Double(code, point.Z);
    }

    internal override string Text(int code, string value)
    {
        if (code != LayoutNameCode)
        {
            Add(code, value);
        }

        return value;
    }

    internal override string Name(int code, SymbolTable table, string value)
    {
        bool isAnonymous = table == SymbolTable.BlockRecord && value.StartsWith("*D", StringComparison.Ordinal);
        Add(code, isAnonymous ? "*" : table == SymbolTable.LineType ? value.ToUpperInvariant() : value);
        return value;
    }

    internal override string Handle(int code, HandleRole role, string value) => value;

    internal override ulong Handle(int code, HandleRole role, ulong value) => value;

    internal override byte[] Binary(int code, byte[] value)
    {
        Add(code, value);
        return value;
    }

    internal override int Count(int code, int count) => Int32(code, count);

    internal override string LongText(int pieceCode, int lastCode, string value) => Text(lastCode, value);

    internal override void Lines(List<string> lines)
    {
        Count(0, lines.Count);
        lines.ForEach(line => Add(1, line));
    }

    internal override void Brace(int code, string text)
    {
    }

    internal override void Tags(IList<CadCodeValue> tags)
    {
        foreach (CadCodeValue tag in tags)
        {
            if (!IsHandle(tag.Attribute))
            {
                Add(tag.Attribute, tag.Value);
            }
        }
    }

    /// <summary>Adds bytes.</summary>
    internal void Add(int code, ReadOnlySpan<byte> bytes)
    {
        Add(code, (ulong)bytes.Length);
        foreach (byte one in bytes)
        {
            Add(0, one);
        }
    }

    /// <summary>Adds a string.</summary>
    internal void Add(int code, string text)
    {
        Add(code, (ulong)text.Length);
        foreach (char one in text)
        {
            Add(0, one);
        }
    }

    private static bool IsHandle(int code) =>
        code is 5 or 105 or (>= 320 and < 370) or (>= 390 and < 400) or 480 or 481;

    private void Add(int code, ulong value)
    {
        ulong mixed = (value ^ ((ulong)code << 48)) * LowFactor;
        _low = (_low ^ mixed ^ (mixed >> 32)) * HighFactor;
        _low ^= _low >> 29;
        _high = BitOperations.RotateLeft(_high ^ (value * HighFactor), HighTurn) * LowFactor + (ulong)code;
    }
}
