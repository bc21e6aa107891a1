using System;
using System.Threading;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <content>The block of the file that is in memory: from the current tag on, or from the one that a look ahead comes
/// back to.</content>
internal sealed partial class DxfTagReader
{
    // What a reader leaves for the next one: arrays of this size are costly to allocate.
    private static byte[]? _spare;

    // The offset of the block in the file, and that of the first byte that a look ahead needs again.
    private int _base;
    private int? _kept;
    private bool _ownsBlock;

    private int TagOffset => _base + _tagStart;

    private bool IsAtEnd() => _position >= _end && !TryReadMore();

    /// <summary>Reads on, which moves the current tag to the start of the array, or that which is kept.</summary>
    /// <returns>Whether there was anything left.</returns>
    private bool TryReadMore()
    {
        if (_source.IsAtEnd)
        {
            return false;
        }

        int passed = (_kept ?? TagOffset) - _base;
        int left = _end - passed;
        byte[] target = _data;
        if (left > _data.Length / 2 || _data.Length < SourceWindow.Block)
        {
            long length = Math.Clamp(2L * _data.Length, SourceWindow.Block, Array.MaxLength);
            Budget.VerifyRoom(length);
            target = (length == SourceWindow.Block ? Interlocked.Exchange(ref _spare, null) : null)
                ?? GC.AllocateUninitializedArray<byte>((int)length);
        }

        _data.AsSpan(passed, left).CopyTo(target);
        _ownsBlock |= target != _data;
        _data = target;
        _base += passed;
        (_position, _start, _tagStart) = (_position - passed, _start - passed, _tagStart - passed);
        int read = _source.ReadMore(_data, left);
        _end = left + read;
        return read > 0;
    }

    /// <summary>Ends the reading: the current tag has no value any more.</summary>
    internal void Release()
    {
        byte[] block = _data;
        (_data, _position, _end, _length) = ([], 0, 0, 0);
        if (_ownsBlock && block.Length == SourceWindow.Block)
        {
            _ownsBlock = false;
            Volatile.Write(ref _spare, block);
        }
    }

    /// <summary>Takes a line that the block does not hold to its end.</summary>
    private (int Start, int Length) TakeCutLine()
    {
        int searched = 0;
        while (true)
        {
            int length = _data.AsSpan(_position + searched, _end - _position - searched)
                .IndexOfAny((byte)'\n', (byte)'\r');
            int end = _position + searched + length;
            bool mayBePair = length >= 0 && _data[end] == '\r' && end + 1 == _end;
            if (length >= 0 && !mayBePair)
            {
                return TakeLineTo(end, _data[end] == '\r' && _data[end + 1] == '\n' ? 2 : 1);
            }

            searched = (length < 0 ? _end : end) - _position;
            if (!TryReadMore())
            {
                return TakeLineTo(_position + searched, length < 0 ? 0 : 1);
            }
        }
    }

    private (int Start, int Length) TakeLineTo(int end, int terminator)
    {
        int start = _position;
        _position = end + terminator;
        return (start, end - start);
    }

    /// <summary>Determines whether nothing follows up to the end of the file; if so, goes there.</summary>
    private bool HasOnlyBlanks()
    {
        while (_data.AsSpan(_position, _end - _position).Trim(" \t\0\r\n\u001a"u8).IsEmpty)
        {
            _position = _end;
            if (!TryReadMore())
            {
                return true;
            }
        }

        return false;
    }
}
