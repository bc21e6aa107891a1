using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>Compresses pages so that <see cref="Lz77"/> decompresses them.</summary>
internal sealed class Lz77Encoder
{
    private const int HashBits = 14;
    private const int MinMatch = 4;
    private const int MaxChain = 24;
    private const int NearDistance = 0x400;
    private const int MiddleDistance = 0x4000;
    private const int FarDistance = 0x7FFF;
    private const int FarOffset = 0x3FFF;
    private const int MaxNearLength = 14;
    private const int MaxMiddleLength = 0x21;
    private const int MaxFarLength = 9;

    private readonly int[] _heads = new int[1 << HashBits];
    private int[] _previous = [];
    private byte[] _output = [];
    private int _length;

    // Where the last match keeps how many literals follow; -1 before the first one.
    private int _lastMatch;

    /// <summary>Compresses a page.</summary>
    /// <param name="source">The page: four bytes or more.</param>
    internal byte[] Compress(ReadOnlySpan<byte> source)
    {
        Begin(source.Length);
        int literals = 0;
        int at = 0;

        // The first literals have a length of their own, which is four at least.
        while (at < source.Length)
        {
            int distance = 0;
            int length = at - literals >= 0 && at >= MinMatch ? FindMatch(source, at, out distance) : 0;
            if (length < MinMatch)
            {
                Index(source, at++);
                continue;
            }

            AddLiterals(source[literals..at]);
            AddMatch(distance, length);
            for (int end = at + length; at < end; at++)
            {
                Index(source, at);
            }

            literals = at;
        }

        AddLiterals(source[literals..]);
        Put(0x11);
        Put(0);
        Put(0);
        return _output.AsSpan(0, _length).ToArray();
    }

    private void Begin(int length)
    {
        Array.Fill(_heads, -1);
        _previous = _previous.Length < length ? new int[length] : _previous;
        int room = length + (length >> 3) + 64;
        _output = _output.Length < room ? new byte[room] : _output;
        _length = 0;
        _lastMatch = -1;
    }

    private static int HashOf(ReadOnlySpan<byte> source, int at) =>
        (int)((BitConverter.ToUInt32(source[at..]) * 2654435761) >> (32 - HashBits));

    private void Index(ReadOnlySpan<byte> source, int at)
    {
        if (at + MinMatch <= source.Length)
        {
            int hash = HashOf(source, at);
            _previous[at] = _heads[hash];
            _heads[hash] = at;
        }
    }

    private int FindMatch(ReadOnlySpan<byte> source, int at, out int distance)
    {
        distance = 0;
        int best = 0;
        if (at + MinMatch > source.Length)
        {
            return best;
        }

        int candidate = _heads[HashOf(source, at)];
        for (int i = 0; i < MaxChain && candidate >= 0 && at - candidate <= FarDistance; i++)
        {
            int length = source[at..].CommonPrefixLength(source[candidate..]);
            if (length > best)
            {
                (best, distance) = (length, at - candidate);
            }

            candidate = _previous[candidate];
        }

        return best;
    }

    private void AddLiterals(ReadOnlySpan<byte> literals)
    {
        int count = literals.Length;
        if (count is > 0 and <= 3 && _lastMatch >= 0)
        {
            _output[_lastMatch] |= (byte)count;
        }
        else if (count > 3)
        {
            AddLength(count - 3, 0x0F);
        }

        literals.CopyTo(_output.AsSpan(_length));
        _length += count;
    }

    // Beyond a limit, a zero is followed by the rest, of which each further zero is 255.
    private void AddLength(int value, int limit)
    {
        if (value <= limit)
        {
            Put(value);
            return;
        }

        Put(0);
        value -= limit;
        for (; value > 0xFF; value -= 0xFF)
        {
            Put(0);
        }

        Put(value);
    }

    private void AddMatch(int distance, int length)
    {
        int offset = distance - 1;
        if (offset < NearDistance && length <= MaxNearLength)
        {
            _lastMatch = _length;
            Put(((length + 1) << 4) | ((offset & 3) << 2));
            Put(offset >> 2);
            return;
        }

        if (offset < MiddleDistance)
        {
            AddOpcode(0x20, length, length <= MaxMiddleLength ? length - 2 : 0, MaxMiddleLength);
        }
        else
        {
            offset -= FarOffset;
            AddOpcode(0x10, length, length <= MaxFarLength ? length - 2 : 0, MaxFarLength);
        }

        _lastMatch = _length;
        Put((offset << 2) & 0xFC);
        Put(offset >> 6);
    }

    private void AddOpcode(int opcode, int length, int shortLength, int maxShort)
    {
        Put(opcode | shortLength);
        if (shortLength == 0)
        {
            AddLength(length - maxShort, 0xFF);
        }
    }

    private void Put(int value)
    {
        if (_length + 1 >= _output.Length)
        {
            Array.Resize(ref _output, 2 * _output.Length);
        }

        _output[_length++] = (byte)value;
    }
}
