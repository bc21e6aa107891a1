using System;
using System.Buffers.Text;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes the tags of a text or binary interchange file.</summary>
internal sealed partial class DxfTagWriter(
    Stream stream, Encoding encoding, int release, BinaryLayout layout = BinaryLayout.None)
{
    private const int ChunkLength = 250;

    private readonly Encoding _encoding = TextEscapes.Escaping(encoding);
    private readonly byte[] _buffer = new byte[1 << 16];
    private readonly List<string?> _keptFor = [];
    private int _used;

    /// <summary>Gets the release that is written, as a year.</summary>
    internal int Release { get; } = release;

    /// <summary>Gets or sets what is being written, for messages.</summary>
    internal string Subject { get; set; } = "the drawing";

    internal bool HasSubclasses => Release >= 1994;

    /// <summary>Writes what a binary file starts with; nothing for a text file.</summary>
    internal void Begin()
    {
        if (IsBinary)
        {
            stream.Write(BinaryTags.Sentinel);
        }
    }

    internal void Write(int code, string value)
    {
        if (IsBinary)
        {
            WriteBinary(code, value);
            return;
        }

        WriteCode(code);
        WriteText(value);
        EndLine();
    }

    internal void Write(int code, int value) => Write(code, (long)value);

    internal void Write(int code, long value)
    {
        if (IsBinary)
        {
            WriteBinary(code, value);
            return;
        }

        WriteCode(code);
        Reserve(24);
        Utf8Formatter.TryFormat(value, _buffer.AsSpan(_used), out int count);
        _used += count;
        EndLine();
    }

    internal void Write(int code, double value)
    {
        if (!double.IsFinite(value))
        {
            throw new ImageSaveException($"{Subject} has the value {value} for group code {code}; "
                + "only finite numbers can be written.");
        }

        if (IsBinary)
        {
            WriteBinary(code, value);
            return;
        }

        WriteCode(code);
        Reserve(40);
        Span<byte> target = _buffer.AsSpan(_used);
        value.TryFormat(target, out int count, "R", CultureInfo.InvariantCulture);
        if (target[..count].IndexOfAny((byte)'.', (byte)'E') < 0)
        {
            target[count++] = (byte)'.';
            target[count++] = (byte)'0';
        }

        _used += count;
        EndLine();
    }

    internal void Write(int code, Cad3DPoint point)
    {
        Write(code, point.X);
        Write(code + 10, point.Y);
        Write(code + 20, point.Z);
    }

    internal void Write(int code, Cad2DPoint point)
    {
        Write(code, point.X);
        Write(code + 10, point.Y);
    }

    internal void Write(int code, byte[] bytes)
    {
        if (IsBinary && bytes.Length > 0)
        {
            WriteBinary(code, bytes);
            return;
        }

        const int chunk = 127;
        for (int start = 0; start < bytes.Length; start += chunk)
        {
            Write(code, Convert.ToHexString(bytes.AsSpan(start, Math.Min(chunk, bytes.Length - start))));
        }
    }

    internal void Write(CadCodeValue value) => Write(value.Attribute, value.Value);

    internal void WriteHandle(int code, ulong handle) => Write(code, HandleText.Format(handle));

    internal void WriteOptional(int code, int value, int initial)
    {
        if (value != initial)
        {
            Write(code, value);
        }
    }

    internal void WriteSubclass(string name)
    {
        if (HasSubclasses)
        {
            Write(100, name);
        }
    }

    /// <summary>Writes lines of any length: the first chunk of each under code 1, the others under code 3.</summary>
    internal void WriteChunks(IEnumerable<string> lines)
    {
        foreach (string line in lines)
        {
            int start = 0;
            do
            {
                int length = Math.Min(ChunkLength, line.Length - start);
                Write(start == 0 ? 1 : 3, line.Substring(start, length));
                start += length;
            }
            while (start < line.Length);
        }
    }

    /// <summary>Writes a long text: full chunks under one code, the last under another.</summary>
    internal void WriteLongText(int pieceCode, int lastCode, string text)
    {
        int start = 0;
        while (text.Length - start > ChunkLength)
        {
            int length = char.IsHighSurrogate(text[start + ChunkLength - 1]) ? ChunkLength - 1 : ChunkLength;
            Write(pieceCode, text.Substring(start, length));
            start += length;
        }

        Write(lastCode, text[start..]);
    }

    /// <summary>Writes the tags of an object that its class does not interpret and that followed a marker.</summary>
    internal void WriteKept(CadBaseObject source, string? subclass)
    {
        if (source.KeptTags is not { } kept || HasWritten(subclass))
        {
            return;
        }

        _keptFor.Add(subclass);
        foreach (KeptTag tag in kept.Tags)
        {
            if (tag.Subclass == subclass)
            {
                Write(tag.Value);
            }
        }
    }

    /// <summary>Writes the graphics that a drawing database has stored with an entity.</summary>
    internal void WriteGraphics(CadBaseObject source)
    {
        const int withLongSizes = 2010;
        if (source.Kept is not KeptBits { Record.Length: 0, Graphics: { Length: > 0 } graphics })
        {
            return;
        }

        Write(Release >= withLongSizes ? 160 : 92, graphics.Length);
        Write(310, graphics);
    }

    /// <summary>Forgets which markers the object before had.</summary>
    internal void BeginObject() => _keptFor.Clear();

    /// <summary>Tells whether the tags that its class does not interpret have been written for a marker of this
    /// object.</summary>
    internal bool HasWritten(string? subclass) => _keptFor.Contains(subclass);

    internal void Flush()
    {
        stream.Write(_buffer, 0, _used);
        _used = 0;
        stream.Flush();
    }

    private void WriteCode(int code)
    {
        Reserve(16);
        if (code is >= 0 and < 10)
        {
            _buffer[_used++] = (byte)' ';
        }

        if (code is >= 0 and < 100)
        {
            _buffer[_used++] = (byte)' ';
        }

        Utf8Formatter.TryFormat(code, _buffer.AsSpan(_used), out int count);
        _used += count;
        EndLine();
    }

    private void WriteText(string value)
    {
        string text = Escaped(value);
        int most = _encoding.GetMaxByteCount(text.Length);
        if (most > _buffer.Length - 16)
        {
            Flush();
            stream.Write(_encoding.GetBytes(text));
            return;
        }

        Reserve(most);
        _used += _encoding.GetBytes(text, _buffer.AsSpan(_used));
    }

    // A line break or a NUL would end the value: line breaks are written as a caret and a character, other control
    // characters by their number.
    private static string Escaped(string text)
    {
        int first = text.AsSpan().IndexOfAnyInRange('\0', '\u001F');
        if (first < 0)
        {
            return text;
        }

        StringBuilder escaped = new(text, 0, first, text.Length + 16);
        foreach (char character in text.Replace("\r\n", "\n", StringComparison.Ordinal).AsSpan(first))
        {
            _ = character switch
            {
                '\n' => escaped.Append("^J"),
                '\r' => escaped.Append("^M"),
                '\t' or >= ' ' => escaped.Append(character),
                _ => escaped.Append($"\\U+{(int)character:X4}"),
            };
        }

        return escaped.ToString();
    }

    private void EndLine()
    {
        Reserve(2);
        _buffer[_used++] = (byte)'\r';
        _buffer[_used++] = (byte)'\n';
    }

    private void Reserve(int count)
    {
        if (_buffer.Length - _used < count)
        {
            stream.Write(_buffer, 0, _used);
            _used = 0;
        }
    }
}
