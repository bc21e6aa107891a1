using System;
using System.IO;
using System.IO.Compression;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A compressed stream of a file that is written while it is made.</summary>
internal sealed class PdfStream : IDisposable
{
    internal const int BlockSize = 32 * 1024;

    private readonly PdfFile _file;
    private readonly Counter _counter;
    private readonly ZLibStream _zlib;
    private readonly int _lengthObject;

    internal PdfStream(PdfFile file, PdfOutput output, int lengthObject, ZLibCompressionOptions level)
    {
        _file = file;
        _lengthObject = lengthObject;
        _counter = new Counter(output);
        _zlib = new ZLibStream(_counter, level, leaveOpen: true);
    }

    /// <summary>Gets the bytes that come next.</summary>
    internal PdfBuffer Content { get; } = new();

    /// <summary>Ends the stream and states its length.</summary>
    internal void Close()
    {
        if (_counter.Count == 0 && Content.Count == 0)
        {
            // Of no content at all, the compressor makes no valid stream.
            Content.Raw((byte)'\n');
        }

        Flush();
        _zlib.Dispose();
        _file.Close(_lengthObject, _counter.Count);
    }

    /// <summary>Ends a stream whose content failed; nothing more is written.</summary>
    public void Dispose()
    {
        _counter.IsDetached = true;
        _zlib.Dispose();
    }

    /// <summary>Hands on the content.</summary>
    internal void Flush()
    {
        _zlib.Write(Content.Bytes);
        Content.Clear();
    }

    private sealed class Counter(PdfOutput output) : Stream
    {
        internal long Count { get; private set; }

        internal bool IsDetached { get; set; }

        public override bool CanRead => false;

        public override bool CanSeek => false;

        public override bool CanWrite => true;

        public override long Length => throw new NotSupportedException();

        public override long Position
        {
            get => throw new NotSupportedException();
            set => throw new NotSupportedException();
        }

        public override void Flush()
        {
        }

        public override int Read(byte[] buffer, int offset, int count) => throw new NotSupportedException();

        public override long Seek(long offset, System.IO.SeekOrigin origin) => throw new NotSupportedException();

        public override void SetLength(long value) => throw new NotSupportedException();

        public override void Write(byte[] buffer, int offset, int count) => Write(buffer.AsSpan(offset, count));

        public override void Write(ReadOnlySpan<byte> buffer)
        {
            if (!IsDetached)
            {
                output.Write(buffer);
                Count += buffer.Length;
            }
        }
    }
}
