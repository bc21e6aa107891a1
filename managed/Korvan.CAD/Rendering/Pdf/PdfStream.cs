using System;
using System.IO.Compression;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A compressed stream of a file that is written while it is made.</summary>
internal sealed class PdfStream : IDisposable
{
    /// <summary>How much content is handed on at once: enough that another thread is worth waking.</summary>
    internal const int BlockSize = 128 * 1024;

    private readonly PdfFile _file;
    private readonly PdfOutput _output;
    private readonly PdfCompressor _compressor;
    private readonly int _lengthObject;
    private readonly long _start;

    internal PdfStream(PdfFile file, PdfOutput output, int lengthObject, ZLibCompressionOptions level)
    {
        (_file, _output, _lengthObject) = (file, output, lengthObject);
        _start = output.Position;
        _compressor = new PdfCompressor(level);
    }

    /// <summary>Gets the bytes that come next.</summary>
    internal PdfBuffer Content { get; } = new();

    /// <summary>Ends the stream and states its length.</summary>
    internal void Close()
    {
        if (_compressor.IsEmpty && Content.Count == 0)
        {
            // Of no content at all, the compressor makes no valid stream.
            Content.Raw((byte)'\n');
        }

        Flush();
        _compressor.Close(_output);
        _file.Close(_lengthObject, _output.Position - _start);
    }

    /// <summary>Ends a stream whose content failed; nothing more is written.</summary>
    public void Dispose() => _compressor.Dispose();

    /// <summary>Hands on the content.</summary>
    internal void Flush()
    {
        _compressor.Add(Content.Bytes, _output);
        Content.Clear();
    }
}
