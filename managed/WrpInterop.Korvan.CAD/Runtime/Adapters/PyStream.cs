using System;
using System.IO;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// A Python file object as a stream. Lent to a method it is buffered, so that Python is called once
/// a block and not once a byte; a kept one passes everything on at once.
/// </summary>
public sealed class PyStream : Stream, IPyAdapter
{
    private const int BlockSize = 256 * 1024;

    // The block of a call that is over serves the next one: blocks of this size are expensive to allocate. Calls run
    // one at a time, under the interpreter lock; one within another makes its own.
    private static BufferedStream? _spare;

    private readonly PyReference _reference;
    private readonly PyRawStream _raw;
    private readonly Stream _target;
    private readonly bool _isKept;
    private bool _isClosed;
    private bool _isSettled;
    private bool _isClean;

    internal PyStream(PyReference reference, bool isBuffered, bool isKept = false)
    {
        _reference = reference;
        _isKept = isKept;
        _raw = new PyRawStream(reference);
        // Reading ahead of what can't go back would lose bytes. A closed file has no use for a block.
        if (!isBuffered || (!_raw.CanSeek && _raw.CanRead) || (!_raw.CanRead && !_raw.CanWrite))
        {
            _target = _raw;
            return;
        }
        BufferedStream? spare = _spare;
        _spare = null;
        if (spare?.UnderlyingStream is PyRawStream kept)
        {
            kept.Retarget(_raw);
            _raw = kept;
        }
        _target = spare ?? new BufferedStream(_raw, BlockSize);
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
        if (!_isClosed && !_isSettled && _target is BufferedStream)
        {
            _isSettled = true;
            _target.Flush();
            _isClean = true;
        }
    }

    void IPyAdapter.Abandon()
    {
        if (_isKept)
        {
            _isClosed = true;
            _reference.End();
            return;
        }
        // What a Python stream took a part of before it failed would reach it twice.
        if (_raw.HasFailed)
        {
            return;
        }
        try
        {
            ((IPyAdapter)this).Complete();
        }
        catch (Exception)
        {
            // The failure that ended the call says more.
        }
    }

    void IPyAdapter.End()
    {
        if (_isKept)
        {
            return;
        }
        if (_isClean && !_isClosed && _target is BufferedStream buffered)
        {
            _raw.Retarget(null);
            _spare = buffered;
        }
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
    private const int EndOfStream = -1;
    private const int NoByte = -2;

    private bool? _canRead;
    private bool? _canSeek;
    private bool? _canWrite;

    private PyReference? _reference = reference;

    private nint File => _reference is { } file
        ? file.Value
        : throw new ObjectDisposedException(nameof(PyStream));

    /// <summary>Gets a value indicating whether the Python stream failed once.</summary>
    internal bool HasFailed { get; private set; }

    /// <summary>Takes over the file object of another stream and what it answered; null for none.</summary>
    internal void Retarget(PyRawStream? other)
    {
        _reference = other?._reference;
        _canRead = other?._canRead;
        _canSeek = other?._canSeek;
        _canWrite = other?._canWrite;
        HasFailed = false;
    }

    public override bool CanRead => _canRead ??= Answer(PyRawIO.Readable(File));

    public override bool CanSeek => _canSeek ??= Answer(PyRawIO.Seekable(File));

    public override bool CanWrite => _canWrite ??= Answer(PyRawIO.Writable(File));

    public override long Length
    {
        get
        {
            long length = PyRawIO.Length(File);
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
        get => Checked(PyRawIO.Tell(File));
        set => Seek(value, SeekOrigin.Begin);
    }

    public override void Flush() => Checked(PyRawIO.Flush(File));

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
            int count = Counted(PyRawIO.Read(File, start, buffer.Length), buffer.Length);
            if (count > 0)
            {
                return count;
            }
        }
        // The end, or a stream that does not block and has nothing yet: a single byte tells them apart.
        int next = ReadByte();
        if (next == EndOfStream)
        {
            return 0;
        }
        buffer[0] = (byte)next;
        return 1;
    }

    public override int ReadByte()
    {
        int next = PyRawIO.ReadByte(File);
        if (next == NoByte)
        {
            Checked(Failure);
        }
        return next;
    }

    public override long Seek(long offset, SeekOrigin origin) =>
        Checked(PyRawIO.Seek(File, offset, (int)origin));

    public override void SetLength(long value)
    {
        ArgumentOutOfRangeException.ThrowIfNegative(value);
        Checked(PyRawIO.Truncate(File, value));
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
                written += Taken(PyRawIO.Write(File, start + written, left), left);
            }
        }
    }

    public override void WriteByte(byte value) => Taken(PyRawIO.WriteByte(File, value), 1);

    protected override void Dispose(bool disposing)
    {
        if (disposing)
        {
            PyRawIO.Close(File);
        }
        base.Dispose(disposing);
    }

    private bool Answer(int status) => Checked(status) != 0;

    private long Checked(long status)
    {
        if (status == Failure)
        {
            HasFailed = true;
            Boundary.ThrowPythonError();
        }
        return status;
    }

    private int Counted(int count, int max)
    {
        Checked(count);
        return (uint)count <= (uint)max
            ? count
            : throw Failed($"The Python stream reports {count} bytes where {max} were requested.");
    }

    private int Taken(int count, int max) =>
        Counted(count, max) > 0 ? count : throw Failed("The Python stream takes no more bytes.");

    private IOException Failed(string message)
    {
        HasFailed = true;
        return new IOException(message);
    }
}
