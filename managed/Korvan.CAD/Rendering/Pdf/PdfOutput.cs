using System;
using System.IO;
using System.Numerics;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The bytes of a file on their way to a stream, with their position and a digest of them.</summary>
internal sealed class PdfOutput(Stream target)
{
    private const int BlockSize = 64 * 1024;
    private const ulong FirstPrime = 0x9E37_79B1_85EB_CA87;
    private const ulong SecondPrime = 0xC2B2_AE3D_27D4_EB4F;

    private readonly byte[] _block = new byte[BlockSize];
    private int _used;
    private long _drained;
    private ulong _first = FirstPrime;
    private ulong _second = SecondPrime;

    /// <summary>Gets how many bytes were written.</summary>
    internal long Position => _drained + _used;

    internal void Write(ReadOnlySpan<byte> bytes)
    {
        while (bytes.Length > 0)
        {
            if (_used == BlockSize)
            {
                Drain();
            }

            int length = Math.Min(bytes.Length, BlockSize - _used);
            bytes[..length].CopyTo(_block.AsSpan(_used));
            bytes = bytes[length..];
            _used += length;
        }
    }

    /// <summary>Hands on what is still here.</summary>
    internal void Drain()
    {
        Digest(_block.AsSpan(0, _used));
        target.Write(_block, 0, _used);
        _drained += _used;
        _used = 0;
    }

    /// <summary>Returns 16 bytes that depend on all that was drained. They tell files apart, no more.</summary>
    internal byte[] Identifier()
    {
        Drain();
        var identifier = new byte[16];
        BitConverter.TryWriteBytes(identifier, _first);
        BitConverter.TryWriteBytes(identifier.AsSpan(8), _second);
        return identifier;
    }

    private void Digest(ReadOnlySpan<byte> bytes)
    {
        for (; bytes.Length >= sizeof(ulong); bytes = bytes[sizeof(ulong)..])
        {
            Mix(BitConverter.ToUInt64(bytes));
        }

        foreach (byte one in bytes)
        {
            Mix(one);
        }
    }

    private void Mix(ulong value)
    {
        _first = BitOperations.RotateLeft(_first ^ (value * SecondPrime), 31) * FirstPrime;
        _second = BitOperations.RotateLeft(_second + (value * FirstPrime), 29) * SecondPrime;
    }
}
