using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Holds what follows a head that is known last. Blocks are not moved when there are more, so that content takes no
/// more memory than it is long; where memory gets short, they go to a file of the cache.
/// </summary>
internal sealed class ContentBlocks : Stream
{
    private const int BlockSize = 1 << 20;

    /// <summary>The blocks that stay in memory.</summary>
    private const int MinBlocks = 8;

    private readonly List<byte[]> _blocks = [];
    private readonly Stack<byte[]> _free = new();
    private readonly CacheFile _file = new();
    private int _used = BlockSize;

    /// <inheritdoc/>
    public override bool CanRead => false;

    /// <inheritdoc/>
    public override bool CanSeek => false;

    /// <inheritdoc/>
    public override bool CanWrite => true;

    /// <inheritdoc/>
    public override long Length => _file.Length + ((long)_blocks.Count * BlockSize) - (BlockSize - _used);

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
                AddBlock();
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
        _file.WriteTo(output, start);
        start = Math.Max(0, start - _file.Length);
        long left = Length - _file.Length - start;
        for (int i = (int)(start / BlockSize); i < _blocks.Count && left > 0; i++)
        {
            int from = (int)Math.Max(0, start - ((long)i * BlockSize));
            int count = (int)Math.Min(left, BlockSize - from);
            output.Write(_blocks[i], from, count);
            left -= count;
        }
    }

    private void AddBlock()
    {
        byte[]? free = _free.TryPop(out byte[]? block) ? block
            : _blocks.Count >= MinBlocks && IsMemoryShort() ? MoveBlocks()
            : null;
        if (free is null)
        {
            Budget.VerifyRoom(2 * BlockSize); // less is not looked at
            free = GC.AllocateUninitializedArray<byte>(BlockSize);
        }

        _blocks.Add(free);
        _used = 0;
    }

    private static bool IsMemoryShort() => Budget.Current is { } budget && budget.Taken > budget.Memory / 4;

    // Returns a block that is free then; none where the cache is in memory.
    private byte[]? MoveBlocks()
    {
        if (Cache.CacheType == CacheType.CacheInMemoryOnly)
        {
            return null;
        }

        _blocks.ForEach(block => _file.Append(block));
        _free.Clear();
        _blocks[..MinBlocks].ForEach(_free.Push);
        _blocks.Clear();
        return _free.Pop();
    }

    /// <inheritdoc/>
    protected override void Dispose(bool disposing)
    {
        _file.Dispose();
        base.Dispose(disposing);
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
