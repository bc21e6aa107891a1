using System.IO;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes bits to a stream, the lowest of each byte first. Without a stream they are counted only.</summary>
internal sealed class LowBitWriter(Stream? output)
{
    private const int BufferSize = 1 << 16;

    private readonly byte[] _buffer = new byte[output is null ? 0 : BufferSize];
    private ulong _pending;
    private int _pendingCount;
    private int _used;

    /// <summary>Gets how many bits were written.</summary>
    internal long Count { get; private set; }

    /// <summary>Writes the lowest bits of a value, at most 32.</summary>
    internal void Write(uint value, int count)
    {
        Count += count;
        if (output is null)
        {
            return;
        }

        _pending |= (ulong)value << _pendingCount;
        _pendingCount += count;
        while (_pendingCount >= 8)
        {
            Put((byte)_pending);
            _pending >>= 8;
            _pendingCount -= 8;
        }
    }

    /// <summary>Fills the last byte with zeros and gives all to the stream.</summary>
    internal void End()
    {
        if (_pendingCount > 0)
        {
            Put((byte)_pending);
        }

        output?.Write(_buffer, 0, _used);
        _used = 0;
    }

    private void Put(byte value)
    {
        _buffer[_used++] = value;
        if (_used == _buffer.Length)
        {
            output!.Write(_buffer, 0, _used);
            _used = 0;
        }
    }
}
