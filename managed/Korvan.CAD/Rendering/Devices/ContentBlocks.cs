using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Holds what follows a head that is known last. Blocks are not moved when there are more, so that content takes no
/// more memory than it is long.
/// </summary>
internal sealed class ContentBlocks : Stream
{
    private const int BlockSize = 1 << 20;

    private readonly List<byte[]> _blocks = [];
    private int _used = BlockSize;

    /// <inheritdoc/>
    public override bool CanRead => false;

    /// <inheritdoc/>
    public override bool CanSeek => false;

    /// <inheritdoc/>
    public override bool CanWrite => true;

    /// <inheritdoc/>
    public override long Length => ((long)_blocks.Count * BlockSize) - (BlockSize - _used);

    /// <inheritdoc/>
    public override long Position
    {
        get => Length;
        set => throw new NotSupportedException();
    }

    /// <inheritdoc/>
    public override void Write(ReadOnlySpan<byte> buffer)
    {
        while (buffer.Length > 0)
        {
            if (_used == BlockSize)
            {
                Budget.VerifyRoom(2 * BlockSize); // less is not looked at
                _blocks.Add(GC.AllocateUninitializedArray<byte>(BlockSize));
                _used = 0;
            }

            int count = Math.Min(buffer.Length, BlockSize - _used);
            buffer[..count].CopyTo(_blocks[^1].AsSpan(_used));
            _used += count;
            buffer = buffer[count..];
        }
    }

    /// <inheritdoc/>
    public override void Write(byte[] buffer, int offset, int count) => Write(buffer.AsSpan(offset, count));

    /// <inheritdoc/>
    public override void WriteByte(byte value) => Write([value]);

    /// <summary>Writes the content to another stream.</summary>
    /// <param name="output">The other stream.</param>
    /// <param name="start">How many bytes at the begin are left out.</param>
    internal void WriteTo(Stream output, long start = 0)
    {
        long left = Length - start;
        for (int i = (int)(start / BlockSize); i < _blocks.Count && left > 0; i++)
        {
            int from = (int)Math.Max(0, start - ((long)i * BlockSize));
            int count = (int)Math.Min(left, BlockSize - from);
            output.Write(_blocks[i], from, count);
            left -= count;
        }
    }

    /// <inheritdoc/>
    public override void Flush()
    {
    }

    /// <inheritdoc/>
    public override int Read(byte[] buffer, int offset, int count) => throw new NotSupportedException();

    /// <inheritdoc/>
    public override long Seek(long offset, System.IO.SeekOrigin origin) => throw new NotSupportedException();

    /// <inheritdoc/>
    public override void SetLength(long value) => throw new NotSupportedException();
}
