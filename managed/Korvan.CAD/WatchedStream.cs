using System;
using System.IO;

namespace Korvan.CAD;

/// <summary>The output of an export, which ends with the export's <see cref="Budget"/>. The stream behind it stays
/// open.</summary>
internal sealed class WatchedStream(Stream target) : Stream
{
    private const int Piece = 1 << 20;

    /// <inheritdoc/>
    public override bool CanRead => target.CanRead;

    /// <inheritdoc/>
    public override bool CanSeek => target.CanSeek;

    /// <inheritdoc/>
    public override bool CanWrite => target.CanWrite;

    /// <inheritdoc/>
    public override long Length => target.Length;

    /// <inheritdoc/>
    public override long Position
    {
        get => target.Position;
        set => target.Position = value;
    }

    /// <inheritdoc/>
    public override void Flush() => target.Flush();

    /// <inheritdoc/>
    public override int Read(byte[] buffer, int offset, int count) => target.Read(buffer, offset, count);

    /// <inheritdoc/>
    public override int Read(Span<byte> buffer) => target.Read(buffer);

    /// <inheritdoc/>
    public override long Seek(long offset, System.IO.SeekOrigin origin) => target.Seek(offset, origin);

    /// <inheritdoc/>
    public override void SetLength(long value) => target.SetLength(value);

    /// <inheritdoc/>
    public override void Write(byte[] buffer, int offset, int count) => Write(buffer.AsSpan(offset, count));

    /// <inheritdoc/>
    public override void Write(ReadOnlySpan<byte> buffer)
    {
        for (int start = 0; start < buffer.Length; start += Piece)
        {
            Budget.Check();
            target.Write(buffer[start..Math.Min(start + Piece, buffer.Length)]);
        }
    }

    /// <inheritdoc/>
    public override void WriteByte(byte value) => target.WriteByte(value);
}
