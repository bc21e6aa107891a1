using System;
using System.Buffers.Binary;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <summary>Reads the values of one chunk. What lies beyond its end reads as zero, and is told.</summary>
internal ref struct ChunkReader(ReadOnlySpan<byte> data)
{
    private const int Alignment = 4;

    private readonly ReadOnlySpan<byte> _data = data;
    private int _position;

    /// <summary>Gets whether more was read than the chunk holds.</summary>
    internal bool IsShort { get; private set; }

    internal readonly int Left => _data.Length - _position;

    internal int Int() =>
        Take(sizeof(int)) is { IsEmpty: false } bytes ? BinaryPrimitives.ReadInt32LittleEndian(bytes) : 0;

    internal double Double() =>
        Take(sizeof(double)) is { IsEmpty: false } bytes ? BinaryPrimitives.ReadDoubleLittleEndian(bytes) : 0;

    internal Vec3 Vector() => new(Double(), Double(), Double());

    /// <summary>Reads a number of items of a size; none where the chunk cannot hold them.</summary>
    internal int Count(int size)
    {
        int count = Int();
        if (count < 0 || (long)count * size > Left)
        {
            IsShort = true;
            return 0;
        }

        return count;
    }

    internal Vec3[] Points(int count)
    {
        var points = new Vec3[count];
        for (int i = 0; i < count; i++)
        {
            points[i] = Vector();
        }

        return points;
    }

    /// <summary>Reads a transform by rows, whose last one is that of no projection.</summary>
    internal Affine3 Transform()
    {
        Span<double> m = stackalloc double[16];
        foreach (ref double value in m)
        {
            value = Double();
        }

        return new Affine3(
            new Vec3(m[0], m[4], m[8]), new Vec3(m[1], m[5], m[9]), new Vec3(m[2], m[6], m[10]),
            new Vec3(m[3], m[7], m[11]));
    }

    /// <summary>Reads a string that ends with a zero and is padded to four bytes.</summary>
    internal string Text(bool isUnicode)
    {
        int unit = isUnicode ? sizeof(char) : 1;
        ReadOnlySpan<byte> rest = _data[_position..];
        int length = 0;
        while (length + unit <= rest.Length && rest.Slice(length, unit).IndexOfAnyExcept((byte)0) >= 0)
        {
            length += unit;
        }

        ReadOnlySpan<byte> text = rest[..length];
        int padded = (length + unit + Alignment - 1) / Alignment * Alignment;
        Skip(Math.Min(padded, rest.Length));
        return isUnicode ? Encoding.Unicode.GetString(text) : Encoding.Latin1.GetString(text);
    }

    internal void Skip(long count)
    {
        if (count > Left)
        {
            IsShort = true;
            count = Left;
        }

        _position += (int)count;
    }

    internal ReadOnlySpan<byte> Take(int count)
    {
        if (count < 0 || count > Left)
        {
            IsShort = true;
            _position = _data.Length;
            return default;
        }

        _position += count;
        return _data.Slice(_position - count, count);
    }
}
