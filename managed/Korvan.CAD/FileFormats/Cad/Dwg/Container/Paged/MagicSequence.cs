using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;

/// <summary>The pseudo-random bytes that the file header is masked with, and that fill gaps between pages.</summary>
internal static class MagicSequence
{
    private const int Multiplier = 0x343FD;
    private const int Increment = 0x269EC3;

    /// <summary>The length up to which gaps are filled.</summary>
    internal const int Length = 0x100;

    private static readonly byte[] Sequence = Build();

    internal static ReadOnlySpan<byte> Bytes => Sequence;

    /// <summary>Masks or unmasks bytes.</summary>
    internal static void Apply(Span<byte> bytes)
    {
        for (int i = 0; i < bytes.Length; i++)
        {
            bytes[i] ^= Sequence[i];
        }
    }

    private static byte[] Build()
    {
        byte[] bytes = new byte[Length];
        int seed = 1;
        for (int i = 0; i < bytes.Length; i++)
        {
            seed = unchecked((seed * Multiplier) + Increment);
            bytes[i] = (byte)(seed >> 16);
        }

        return bytes;
    }
}
