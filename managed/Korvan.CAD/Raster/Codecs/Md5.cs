using System;
using System.Buffers.Binary;
using System.Numerics;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The message digest of RFC 1321, which names parts of metadata. It protects nothing.</summary>
internal static class Md5
{
    private const int BlockLength = 64;

    private static readonly int[] Shifts = [7, 12, 17, 22, 5, 9, 14, 20, 4, 11, 16, 23, 6, 10, 15, 21];

    /// <summary>Returns the 16 bytes of a digest.</summary>
    internal static byte[] Digest(ReadOnlySpan<byte> data)
    {
        byte[] padded = new byte[((data.Length + 8) / BlockLength * BlockLength) + BlockLength];
        data.CopyTo(padded);
        padded[data.Length] = 0x80;
        BinaryPrimitives.WriteInt64LittleEndian(padded.AsSpan(padded.Length - 8), data.Length * 8L);
        uint[] state = [0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476];
        for (int start = 0; start < padded.Length; start += BlockLength)
        {
            Add(padded.AsSpan(start, BlockLength), state);
        }

        byte[] digest = new byte[16];
        for (int i = 0; i < state.Length; i++)
        {
            BinaryPrimitives.WriteUInt32LittleEndian(digest.AsSpan(4 * i), state[i]);
        }

        return digest;
    }

    private static void Add(ReadOnlySpan<byte> block, uint[] state)
    {
        (uint a, uint b, uint c, uint d) = (state[0], state[1], state[2], state[3]);
        for (int i = 0; i < BlockLength; i++)
        {
            (uint mixed, int word) = (i / 16) switch
            {
                0 => ((b & c) | (~b & d), i),
                1 => ((d & b) | (~d & c), ((5 * i) + 1) % 16),
                2 => (b ^ c ^ d, ((3 * i) + 5) % 16),
                _ => (c ^ (b | ~d), 7 * i % 16),
            };
            var addend = (uint)(long)Math.Floor(Math.Abs(Math.Sin(i + 1)) * 4294967296.0);
            uint sum = a + mixed + addend + BinaryPrimitives.ReadUInt32LittleEndian(block[(4 * word)..]);
            (a, d, c) = (d, c, b);
            b += BitOperations.RotateLeft(sum, Shifts[(i / 16 * 4) + (i % 4)]);
        }

        state[0] += a;
        state[1] += b;
        state[2] += c;
        state[3] += d;
    }
}
