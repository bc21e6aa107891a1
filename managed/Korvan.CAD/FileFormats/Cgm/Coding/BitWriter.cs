using System;
using System.Buffers;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Writes integers of any count of bits, the most significant first.</summary>
internal sealed class BitWriter
{
    private readonly ArrayBufferWriter<byte> _bytes = new();
    private int _open;
    private int _openBits;

    internal void Write(uint value, int bits)
    {
        while (bits > 0)
        {
            int taken = Math.Min(8 - _openBits, bits);
            uint part = (value >> (bits - taken)) & ((1u << taken) - 1);
            _open = (_open << taken) | (int)part;
            _openBits += taken;
            bits -= taken;
            if (_openBits == 8)
            {
                Flush();
            }
        }
    }

    /// <summary>Writes a byte at a byte boundary.</summary>
    internal void WriteByte(byte value)
    {
        _bytes.GetSpan(1)[0] = value;
        _bytes.Advance(1);
    }

    internal void AlignToWord(int skew)
    {
        if (_openBits > 0)
        {
            Write(0, 8 - _openBits);
        }

        if (((_bytes.WrittenCount + skew) & 1) == 1)
        {
            WriteByte(0);
        }
    }

    internal byte[] ToArray()
    {
        if (_openBits > 0)
        {
            Write(0, 8 - _openBits);
        }

        return _bytes.WrittenSpan.ToArray();
    }

    private void Flush()
    {
        WriteByte((byte)_open);
        (_open, _openBits) = (0, 0);
    }
}
