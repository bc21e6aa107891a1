using System;
using System.IO;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// A Python file object as a stream. Lent to a method it is buffered, so that Python is called once
/// a block and not once a byte; a kept one passes everything on at once.
/// </summary>
public sealed class PyStream : Stream, IPyAdapter
{
    private const int BlockSize = 64 * 1024;

    private readonly PyReference _reference;
    private readonly Stream _target;
    private bool _isClosed;

    internal PyStream(PyReference reference, bool isBuffered)
    {
        _reference = reference;
        var raw = new PyRawStream(reference);
        // Reading ahead of what can't go back would lose bytes.
        _target = isBuffered && (raw.CanSeek || !raw.CanRead) ? new BufferedStream(raw, BlockSize) : raw;
    }

    public nint PyObject => _reference.Value;

    public override bool CanRead => !_isClosed && _target.CanRead;

    public override bool CanSeek => !_isClosed && _target.CanSeek;

    public override bool CanWrite => !_isClosed && _target.CanWrite;

    public override long Length => Open.Length;

    public override long Position
    {
        get => Open.Position;
        set => Open.Position = value;
    }

    private Stream Open
    {
        get
        {
            ObjectDisposedException.ThrowIf(_isClosed, this);
            return _target;
        }
    }

    public override void Flush() => Open.Flush();

    public override int Read(byte[] buffer, int offset, int count) => Open.Read(buffer, offset, count);

    public override int Read(Span<byte> buffer) => Open.Read(buffer);

    public override int ReadByte() => Open.ReadByte();

    public override long Seek(long offset, SeekOrigin origin) => Open.Seek(offset, origin);

    public override void SetLength(long value) => Open.SetLength(value);

    public override void Write(byte[] buffer, int offset, int count) => Open.Write(buffer, offset, count);

    public override void Write(ReadOnlySpan<byte> buffer) => Open.Write(buffer);

    public override void WriteByte(byte value) => Open.WriteByte(value);

    void IPyAdapter.Complete()
    {
        // Flushing also brings the Python position back from what was read ahead.
        if (!_isClosed && _target is BufferedStream)
        {
            _target.Flush();
        }
    }

    void IPyAdapter.End()
    {
        _isClosed = true;
        _reference.End();
    }

    protected override void Dispose(bool disposing)
    {
        if (disposing && !_isClosed)
        {
            _isClosed = true;
            _target.Dispose();
        }
        base.Dispose(disposing);
    }
}

/// <summary>A Python file object, call by call.</summary>
internal sealed unsafe class PyRawStream(PyReference reference) : Stream
{
    private const int Failure = -1;
    private const int NotSeekable = -2;
    private const int Closed = -3;

    private bool? _canRead;
    private bool? _canSeek;
    private bool? _canWrite;

    public override bool CanRead => _canRead ??= Answer(PyRawIO.Readable(reference.Value));

    public override bool CanSeek => _canSeek ??= Answer(PyRawIO.Seekable(reference.Value));

    public override bool CanWrite => _canWrite ??= Answer(PyRawIO.Writable(reference.Value));

    public override long Length
    {
        get
        {
            long length = PyRawIO.Length(reference.Value);
            switch (length)
            {
                case Closed:
                    throw new ObjectDisposedException(nameof(PyStream));
                case NotSeekable:
                    throw new NotSupportedException("The Python stream can't seek.");
                default:
                    return Checked(length);
            }
        }
    }

    public override long Position
    {
        get => Checked(PyRawIO.Tell(reference.Value));
        set => Seek(value, SeekOrigin.Begin);
    }

    public override void Flush() => Checked(PyRawIO.Flush(reference.Value));

    public override int Read(byte[] buffer, int offset, int count)
    {
        ValidateBufferArguments(buffer, offset, count);
        return Read(buffer.AsSpan(offset, count));
    }

    public override int Read(Span<byte> buffer)
    {
        if (buffer.IsEmpty)
        {
            return 0;
        }
        fixed (byte* start = buffer)
        {
            return Counted(PyRawIO.Read(reference.Value, start, buffer.Length), buffer.Length);
        }
    }

    public override long Seek(long offset, SeekOrigin origin) =>
        Checked(PyRawIO.Seek(reference.Value, offset, (int)origin));

    public override void SetLength(long value)
    {
        ArgumentOutOfRangeException.ThrowIfNegative(value);
        Checked(PyRawIO.Truncate(reference.Value, value));
    }

    public override void Write(byte[] buffer, int offset, int count)
    {
        ValidateBufferArguments(buffer, offset, count);
        Write(buffer.AsSpan(offset, count));
    }

    public override void Write(ReadOnlySpan<byte> buffer)
    {
        fixed (byte* start = buffer)
        {
            for (int written = 0; written < buffer.Length;)
            {
                int left = buffer.Length - written;
                int count = Counted(PyRawIO.Write(reference.Value, start + written, left), left);
                if (count == 0)
                {
                    throw new IOException("The Python stream takes no more bytes.");
                }
                written += count;
            }
        }
    }

    protected override void Dispose(bool disposing)
    {
        if (disposing)
        {
            PyRawIO.Close(reference.Value);
        }
        base.Dispose(disposing);
    }

    private static bool Answer(int status) => Checked(status) != 0;

    private static long Checked(long status)
    {
        if (status == Failure)
        {
            Boundary.ThrowPythonError();
        }
        return status;
    }

    private static int Counted(int count, int most)
    {
        Checked(count);
        return (uint)count <= (uint)most
            ? count
            : throw new IOException($"The Python stream speaks of {count} bytes where {most} were asked for.");
    }
}
