using System;
using System.Buffers;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>
/// Splits a stream into elements: a header word of class, number and length; the length 31 announces partitions, each
/// with a header word of its own, whose highest bit announces another one. Each partition is padded to whole words
/// (ISO/IEC 8632-3, 5.4).
/// </summary>
internal sealed class BinaryElements(Stream stream, long origin) : IDisposable
{
    private const int LongForm = 31;
    private const int MorePartsFlag = 0x8000;
    private const int BlockLength = 1 << 16;
    private const int MaxElementLength = 1 << 30;

    private byte[] _block = ArrayPool<byte>.Shared.Rent(BlockLength);
    private int _blockAt;
    private int _blockEnd;
    private byte[] _parameters = ArrayPool<byte>.Shared.Rent(BlockLength);
    private long _blockStart = origin;

    internal int Class { get; private set; }

    internal int Id { get; private set; }

    /// <summary>Gets the offset of the element.</summary>
    internal long Start { get; private set; } = origin;

    /// <summary>Gets the offset of the next element.</summary>
    internal long Position => _blockStart + _blockAt;

    internal byte[] Parameters => _parameters;

    internal int Length { get; private set; }

    public void Dispose()
    {
        ArrayPool<byte>.Shared.Return(_block);
        ArrayPool<byte>.Shared.Return(_parameters);
        (_block, _parameters, _blockAt, _blockEnd, Length) = ([], [], 0, 0, 0);
    }

    /// <summary>Moves to the next element.</summary>
    /// <returns>False after the last one.</returns>
    /// <exception cref="CgmDataException">The stream ends within the element.</exception>
    internal bool MoveNext()
    {
        Start = Position;
        (Length, Class, Id) = (0, 0, 0);
        if (!TryReadWord(out int header))
        {
            return false;
        }

        (Class, Id) = (header >> 12, (header >> 5) & 0x7F);
        int length = header & LongForm;
        if (length != LongForm)
        {
            Append(length);
            return true;
        }

        for (int part = MorePartsFlag; (part & MorePartsFlag) != 0;)
        {
            if (!TryReadWord(out part))
            {
                throw new CgmDataException("the file ends where the length of the element is expected");
            }

            Append(part & ~MorePartsFlag);
        }

        return true;
    }

    private bool TryReadWord(out int word)
    {
        word = 0;
        if (_blockEnd - _blockAt < 2 && !Fill(2))
        {
            // A single byte after the last element can be no element.
            return false;
        }

        word = BinaryPrimitives.ReadUInt16BigEndian(_block.AsSpan(_blockAt));
        _blockAt += 2;
        return true;
    }

    private void Append(int count)
    {
        if (Length > MaxElementLength - count)
        {
            throw new CgmDataException($"the element has more than {MaxElementLength} bytes");
        }

        if (_blockEnd - _blockAt < count && !Fill(count))
        {
            int there = Length + _blockEnd - _blockAt;
            throw new CgmDataException(
                $"the element announces {Length + count} bytes, but the file ends after {there}");
        }

        EnsureRoom(count);
        _block.AsSpan(_blockAt, count).CopyTo(_parameters.AsSpan(Length));
        Length += count;
        _blockAt += count;

        // The last element may lack its padding.
        if ((count & 1) == 1 && (_blockAt < _blockEnd || Fill(1)))
        {
            _blockAt++;
        }
    }

    private void EnsureRoom(int count)
    {
        if (Length + count <= _parameters.Length)
        {
            return;
        }

        byte[] larger = ArrayPool<byte>.Shared.Rent(Math.Max(Length + count, 2 * Length));
        _parameters.AsSpan(0, Length).CopyTo(larger);
        ArrayPool<byte>.Shared.Return(_parameters);
        _parameters = larger;
    }

    // The remaining bytes move to the front; the longest partition fits into a block.
    private bool Fill(int needed)
    {
        _block.AsSpan(_blockAt.._blockEnd).CopyTo(_block);
        _blockStart += _blockAt;
        (_blockAt, _blockEnd) = (0, _blockEnd - _blockAt);
        _blockEnd += stream.ReadAtLeast(_block.AsSpan(_blockEnd), needed - _blockEnd, false);
        return _blockEnd >= needed;
    }
}
