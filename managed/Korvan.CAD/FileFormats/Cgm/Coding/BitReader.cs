using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Reads integers of any count of bits, the most significant first.</summary>
internal ref struct BitReader(ReadOnlySpan<byte> data)
{
    private readonly ReadOnlySpan<byte> _data = data;
    private long _at;

    internal uint ReadUnsigned(int bits)
    {
        if (_at + bits > _data.Length * 8L)
        {
            throw new CgmDataException("the cells end too early");
        }

        uint value = 0;
        while (bits > 0)
        {
            int free = 8 - (int)(_at & 7);
            int taken = Math.Min(free, bits);
            int part = (_data[(int)(_at >> 3)] >> (free - taken)) & ((1 << taken) - 1);
            value = (value << taken) | (uint)part;
            _at += taken;
            bits -= taken;
        }

        return value;
    }

    internal int ReadSigned(int bits) => (int)(ReadUnsigned(bits) << (32 - bits)) >> (32 - bits);

    /// <summary>Skips to the next even byte, counted with a skew of 1 where the data start at an odd one.</summary>
    internal void AlignToWord(int skew)
    {
        const int word = 16;
        long place = _at + (skew * 8);
        _at = ((place + word - 1) / word * word) - (skew * 8);
    }
}
