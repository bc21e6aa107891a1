using System;
using System.Buffers.Binary;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>The bytes of a record. What lies past the end of a damaged one is zero.</summary>
internal readonly ref struct RecordData(ReadOnlySpan<byte> bytes)
{
    private readonly ReadOnlySpan<byte> _bytes = bytes;

    internal int Length => _bytes.Length;

    internal int Int32(int at) => Has(at, 4) ? BinaryPrimitives.ReadInt32LittleEndian(_bytes[at..]) : 0;

    internal short Int16(int at) => Has(at, 2) ? BinaryPrimitives.ReadInt16LittleEndian(_bytes[at..]) : (short)0;

    internal int UInt16(int at) => (ushort)Int16(at);

    internal byte Byte(int at) => Has(at, 1) ? _bytes[at] : (byte)0;

    internal double Single(int at)
    {
        float value = Has(at, 4) ? BinaryPrimitives.ReadSingleLittleEndian(_bytes[at..]) : 0;
        return float.IsFinite(value) ? value : 0;
    }

    /// <summary>A point of two numbers of 32 bits.</summary>
    internal Vec2 Point(int at) => new(Int32(at), Int32(at + 4));

    /// <summary>A colour: red, green, blue.</summary>
    internal Rgba Color(int at) => new(Byte(at), Byte(at + 1), Byte(at + 2));

    /// <summary>The bytes of a part, as far as they are there.</summary>
    internal ReadOnlySpan<byte> Slice(int at, int length) =>
        at < 0 || at >= _bytes.Length || length <= 0 ? [] : _bytes.Slice(at, Math.Min(length, _bytes.Length - at));

    /// <summary>Points of numbers of 16 or 32 bits, x first; no more than there are.</summary>
    internal Vec2[] Points(int at, int count, bool areShort)
    {
        int size = areShort ? 4 : 8;
        int used = at < 0 || at > _bytes.Length ? 0 : Math.Clamp(count, 0, (_bytes.Length - at) / size);
        Budget.Step(used / 16);
        var points = new Vec2[used];
        for (int i = 0; i < used; i++, at += size)
        {
            points[i] = areShort ? new Vec2(Int16(at), Int16(at + 2)) : Point(at);
        }

        return points;
    }

    private bool Has(int at, int length) => at >= 0 && at <= _bytes.Length - length;
}
