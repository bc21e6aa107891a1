using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

/// <summary>Reed-Solomon codes of 255 bytes over the field of 256 elements, whose generator has the roots α, α² and so
/// on. The byte at an index is the coefficient of that power; the parity bytes are the last ones. Source: Open Design
/// Specification for .dwg files, 5.4.1, chapter 5.13.</summary>
internal sealed class ReedSolomon
{
    /// <summary>The number of bytes of a block.</summary>
    internal const int BlockLength = 255;

    private readonly byte[] _powers = new byte[2 * BlockLength];
    private readonly byte[] _logarithms = new byte[256];
    private readonly uint[]? _remainders;
    private readonly (ulong High, ulong Low)[]? _wideRemainders;

    private ReedSolomon(int polynomial, int parity)
    {
        Parity = parity;
        int power = 1;
        for (int i = 0; i < BlockLength; i++)
        {
            _powers[i] = _powers[i + BlockLength] = (byte)power;
            _logarithms[power] = (byte)i;
            power <<= 1;
            power = power > 255 ? power ^ polynomial : power;
        }

        byte[] generator = BuildGenerator();
        _remainders = parity == sizeof(uint) ? BuildRemainders(generator) : null;
        _wideRemainders = parity == 2 * sizeof(ulong) ? BuildWideRemainders(generator) : null;
    }

    /// <summary>Gets the code of maps and of the file header: 239 bytes of data, 8 wrong bytes corrected.</summary>
    internal static ReedSolomon System { get; } = new(0x169, 16);

    /// <summary>Gets the code of data pages: 251 bytes of data, 2 wrong bytes corrected.</summary>
    internal static ReedSolomon Data { get; } = new(0x11D, 4);

    /// <summary>Gets the number of parity bytes of a block.</summary>
    internal int Parity { get; }

    /// <summary>Gets the number of data bytes of a block.</summary>
    internal int DataLength => BlockLength - Parity;

    /// <summary>Decodes blocks whose bytes alternate.</summary>
    /// <param name="source">The encoded blocks: a first byte of each, then a second byte of each, and so on.</param>
    /// <param name="blocks">The number of blocks.</param>
    /// <param name="target">Where the data goes; what is beyond its end is left out.</param>
    /// <returns>Whether all blocks are valid, or have been corrected.</returns>
    internal bool DecodeInterleaved(ReadOnlySpan<byte> source, int blocks, Span<byte> target)
    {
        bool isValid = true;
        uint[]? remainders = _remainders is { } table ? RemaindersOf(source, blocks, table) : null;
        Span<byte> block = stackalloc byte[BlockLength];
        for (int i = 0; i < blocks; i++)
        {
            for (int at = 0, from = i; at < BlockLength; at++, from += blocks)
            {
                block[at] = source[from];
            }

            isValid &= remainders?[i] == 0 || Correct(block);
            Span<byte> place = target[Math.Min(target.Length, i * DataLength)..];
            block[..Math.Min(DataLength, place.Length)].CopyTo(place);
        }

        return isValid;
    }

    // Steps of one block wait for each other, those of different blocks do not.
    private static uint[] RemaindersOf(ReadOnlySpan<byte> source, int blocks, uint[] table)
    {
        uint[] remainders = new uint[blocks];
        for (int at = BlockLength - 1; at >= 0; at--)
        {
            ReadOnlySpan<byte> bytes = source.Slice(at * blocks, blocks);
            for (int i = 0; i < remainders.Length; i++)
            {
                uint remainder = remainders[i];
                remainders[i] = (remainder << 8) ^ table[(remainder >> 24) ^ bytes[i]];
            }
        }

        return remainders;
    }

    /// <summary>Corrects a block.</summary>
    /// <returns>Whether it is valid now.</returns>
    internal bool Correct(Span<byte> block)
    {
        Span<byte> syndromes = stackalloc byte[Parity];
        return IsValid(block) || !Evaluate(block, syndromes)
            || (CorrectErrors(block, syndromes) && !Evaluate(block, syndromes));
    }

    // A division by the generator is one step a byte where its remainder fits registers.
    private bool IsValid(ReadOnlySpan<byte> block)
    {
        if (_wideRemainders is not { } table)
        {
            return false;
        }

        (ulong high, ulong low) = (0, 0);
        for (int i = BlockLength - 1; i >= 0; i--)
        {
            (ulong High, ulong Low) step = table[(int)(high >> 56) ^ block[i]];
            high = ((high << 8) | (low >> 56)) ^ step.High;
            low = (low << 8) ^ step.Low;
        }

        return (high | low) == 0;
    }

    private bool Evaluate(ReadOnlySpan<byte> block, Span<byte> syndromes)
    {
        bool isWrong = false;
        for (int root = 1; root <= Parity; root++)
        {
            int sum = 0;
            for (int i = BlockLength - 1; i >= 0; i--)
            {
                sum = (sum == 0 ? 0 : _powers[_logarithms[sum] + root]) ^ block[i];
            }

            syndromes[root - 1] = (byte)sum;
            isWrong |= sum != 0;
        }

        return isWrong;
    }

    private bool CorrectErrors(Span<byte> block, ReadOnlySpan<byte> syndromes)
    {
        Span<byte> locator = stackalloc byte[Parity + 1];
        int errors = FindLocator(syndromes, locator);
        if (errors == 0 || 2 * errors > Parity)
        {
            return false;
        }

        Span<byte> evaluator = stackalloc byte[Parity];
        for (int i = 0; i < Parity; i++)
        {
            for (int j = 0; j <= Math.Min(i, errors); j++)
            {
                evaluator[i] ^= Multiply(locator[j], syndromes[i - j]);
            }
        }

        for (int position = 0; position < BlockLength; position++)
        {
            int inverse = (BlockLength - position) % BlockLength;
            if (At(locator, inverse) == 0)
            {
                block[position] ^= ErrorAt(locator, evaluator, inverse);
            }
        }

        return true;
    }

    // Berlekamp-Massey: the shortest recurrence that the syndromes follow.
    private int FindLocator(ReadOnlySpan<byte> syndromes, Span<byte> locator)
    {
        Span<byte> previous = stackalloc byte[Parity + 1];
        Span<byte> next = stackalloc byte[Parity + 1];
        locator[0] = previous[0] = 1;
        int length = 0;
        int gap = 1;
        byte last = 1;
        for (int i = 0; i < Parity; i++)
        {
            byte difference = syndromes[i];
            for (int j = 1; j <= length; j++)
            {
                difference ^= Multiply(locator[j], syndromes[i - j]);
            }

            if (difference == 0)
            {
                gap++;
                continue;
            }

            locator.CopyTo(next);
            byte factor = Multiply(difference, Invert(last));
            for (int j = gap; j <= Parity; j++)
            {
                next[j] ^= Multiply(factor, previous[j - gap]);
            }

            gap++;
            if (2 * length <= i)
            {
                length = i + 1 - length;
                locator.CopyTo(previous);
                (last, gap) = (difference, 1);
            }

            next.CopyTo(locator);
        }

        return length;
    }

    // Forney's formula for roots from α on.
    private byte ErrorAt(ReadOnlySpan<byte> locator, ReadOnlySpan<byte> evaluator, int inverse)
    {
        int derivative = 0;
        for (int j = 1; j < locator.Length; j += 2)
        {
            derivative ^= Multiply(locator[j], _powers[inverse * (j - 1) % BlockLength]);
        }

        return derivative == 0 ? (byte)0 : Multiply(At(evaluator, inverse), Invert((byte)derivative));
    }

    private byte At(ReadOnlySpan<byte> polynomial, int exponent)
    {
        int sum = 0;
        for (int i = 0; i < polynomial.Length; i++)
        {
            sum ^= Multiply(polynomial[i], _powers[exponent * i % BlockLength]);
        }

        return (byte)sum;
    }

    private byte Multiply(byte a, byte b) =>
        a == 0 || b == 0 ? (byte)0 : _powers[_logarithms[a] + _logarithms[b]];

    private byte Invert(byte value) => _powers[BlockLength - _logarithms[value]];

    private byte[] BuildGenerator()
    {
        byte[] generator = new byte[Parity + 1];
        generator[0] = 1;
        for (int root = 1; root <= Parity; root++)
        {
            for (int i = root; i >= 0; i--)
            {
                generator[i] = (byte)(Multiply(generator[i], _powers[root]) ^ (i > 0 ? generator[i - 1] : 0));
            }
        }

        return generator;
    }

    private uint[] BuildRemainders(byte[] generator)
    {
        uint[] table = new uint[256];
        for (int value = 0; value < table.Length; value++)
        {
            for (int i = Parity - 1; i >= 0; i--)
            {
                table[value] = (table[value] << 8) | Multiply((byte)value, generator[i]);
            }
        }

        return table;
    }

    private (ulong High, ulong Low)[] BuildWideRemainders(byte[] generator)
    {
        (ulong High, ulong Low)[] table = new (ulong, ulong)[256];
        for (int value = 0; value < table.Length; value++)
        {
            ref (ulong High, ulong Low) remainder = ref table[value];
            for (int i = Parity - 1; i >= 0; i--)
            {
                remainder.High = (remainder.High << 8) | (remainder.Low >> 56);
                remainder.Low = (remainder.Low << 8) | Multiply((byte)value, generator[i]);
            }
        }

        return table;
    }
}
