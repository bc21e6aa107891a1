using System;
using System.IO;
using System.IO.Compression;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>
/// The objects of a PDF file and where they are (ISO 32000-1, 7.5). In the compact form, objects without streams are
/// collected in object streams, and the table of objects is a stream as well; in the plain form, that of PDF 1.4, each
/// is on its own.
/// </summary>
internal sealed class PdfFile
{
    private const int ObjectsPerStream = 200;
    private const int IndexBits = 8;

    /// <summary>On content, level 2 takes a third more time than 1 for a third fewer bytes; further levels take as much
    /// more for a tenth.</summary>
    private static readonly ZLibCompressionOptions ContentLevel = new() { CompressionLevel = 2 };

    private readonly PdfOutput _output;
    private readonly bool _compact;
    private readonly PdfBuffer _scratch = new();
    private readonly PdfBuffer _collected = new();
    private readonly int[] _members = new int[ObjectsPerStream];
    private readonly int[] _starts = new int[ObjectsPerStream];

    /// <summary>Where each object is: its offset in the file, or, below zero, object stream and index in it.</summary>
    private long[] _places = new long[256];
    private int _count = 1;
    private int _memberCount;

    internal PdfFile(Stream target, bool compact)
    {
        _output = new PdfOutput(target);
        _compact = compact;
        _output.Write(compact ? "%PDF-1.5\n"u8 : "%PDF-1.4\n"u8);
        _output.Write([(byte)'%', 0xE2, 0xE3, 0xCF, 0xD3, (byte)'\n']);
    }

    /// <summary>Returns the number of a new object, which has to be written later.</summary>
    internal int New()
    {
        if (_count == _places.Length)
        {
            Array.Resize(ref _places, 2 * _count);
        }

        return _count++;
    }

    /// <summary>Writes an object without a stream.</summary>
    internal void Add(int number, PdfBuffer body)
    {
        if (!_compact)
        {
            AddPlain(number, body);
            return;
        }

        _members[_memberCount] = number;
        _starts[_memberCount++] = _collected.Count;
        _collected.Raw(body.Bytes).Raw((byte)'\n');
        if (_memberCount == ObjectsPerStream)
        {
            FlushCollected();
        }
    }

    /// <summary>Writes an object on its own, and returns where its body begins in the file.</summary>
    internal long AddPlain(int number, PdfBuffer body)
    {
        Begin(number);
        long start = _output.Position;
        _output.Write(body.Bytes);
        _output.Write("\nendobj\n"u8);
        return start;
    }

    /// <summary>Writes an object with a stream; its dictionary gets the entries, length and filter.</summary>
    internal void AddStream(int number, PdfBuffer entries, ReadOnlySpan<byte> data, bool compress = true)
    {
        if (compress && data.Length > 0)
        {
            AddPacked(number, entries, Pack(data));
        }
        else
        {
            WriteStream(number, entries, data, default);
        }
    }

    /// <summary>Writes an object with a stream that <see cref="Pack"/> has compressed.</summary>
    internal void AddPacked(int number, PdfBuffer entries, ReadOnlyMemory<byte> data) =>
        WriteStream(number, entries, data.Span, "/Filter/FlateDecode"u8);

    /// <summary>Compresses a stream.</summary>
    internal static ReadOnlyMemory<byte> Pack(ReadOnlySpan<byte> data)
    {
        using var packed = new MemoryStream();
        using (var zlib = new ZLibStream(packed, CompressionLevel.Optimal, leaveOpen: true))
        {
            zlib.Write(data);
        }

        return packed.GetBuffer().AsMemory(0, (int)packed.Length);
    }

    /// <summary>Begins an object with a compressed stream of unknown length, which ends when the result is closed.
    /// </summary>
    internal PdfStream Open(int number)
    {
        int length = New();
        Begin(number);
        _scratch.Cleared().Raw("<</Filter/FlateDecode/Length "u8).Ref(length).Raw(">>\nstream\n"u8);
        _output.Write(_scratch.Bytes);
        return new PdfStream(this, _output, length, ContentLevel);
    }

    /// <summary>Writes what ends the file.</summary>
    internal void Finish(int root, int info)
    {
        FlushCollected();
        byte[] identifier = _output.Identifier();
        long start = _output.Position;
        if (_compact)
        {
            WriteCrossReferenceStream(root, info, identifier);
        }
        else
        {
            WriteTable(root, info, identifier);
        }

        _output.Write(_scratch.Cleared().Raw("startxref\n"u8).Int(start).Raw("\n%%EOF\n"u8).Bytes);
        _output.Drain();
    }

    /// <summary>Ends a stream that was opened, and states its length.</summary>
    internal void Close(int lengthObject, long length)
    {
        _output.Write("\nendstream\nendobj\n"u8);
        AddPlain(lengthObject, _scratch.Cleared().Int(length));
    }

    private void Begin(int number)
    {
        _places[number] = _output.Position;
        var header = new PdfBuffer();
        _output.Write(header.Int(number).Raw(" 0 obj\n"u8).Bytes);
    }

    private void WriteStream(int number, PdfBuffer entries, ReadOnlySpan<byte> data, ReadOnlySpan<byte> filter)
    {
        Begin(number);
        _output.Write("<<"u8);
        _output.Write(entries.Bytes);
        _output.Write(_scratch.Cleared().Raw(filter).Raw("/Length "u8).Int(data.Length).Raw(">>\nstream\n"u8).Bytes);
        _output.Write(data);
        _output.Write("\nendstream\nendobj\n"u8);
    }

    private void FlushCollected()
    {
        if (_memberCount == 0)
        {
            return;
        }

        int number = New();
        var content = new PdfBuffer();
        for (int i = 0; i < _memberCount; i++)
        {
            content.Int(_members[i]).Raw((byte)' ').Int(_starts[i]).Raw((byte)' ');
            _places[_members[i]] = -(((long)number << IndexBits) | (long)i);
        }

        int first = content.Count;
        content.Raw(_collected.Bytes);
        var entries = new PdfBuffer();
        entries.Raw("/Type/ObjStm/N "u8).Int(_memberCount).Raw("/First "u8).Int(first);
        _memberCount = 0;
        _collected.Clear();
        AddStream(number, entries, content.Bytes);
    }

    private void WriteCrossReferenceStream(int root, int info, byte[] identifier)
    {
        const int width = 8;
        int number = New();
        _places[number] = _output.Position;
        var table = new byte[_count * width];
        for (int i = 0; i < _count; i++)
        {
            long place = _places[i];
            Span<byte> row = table.AsSpan(i * width, width);
            row[0] = (byte)(place < 0 ? 2 : place > 0 ? 1 : 0);
            long index = place < 0 ? -place & ((1 << IndexBits) - 1) : 0;
            long value = place < 0 ? -place >> IndexBits : place;
            for (int k = 5; k > 0; k--, value >>= 8)
            {
                row[k] = (byte)value;
            }

            row[6] = (byte)(index >> 8);
            row[7] = (byte)index;
        }

        var entries = new PdfBuffer();
        entries.Raw("/Type/XRef/W[1 5 2]"u8);
        AppendTrailer(entries, root, info, identifier);
        AddStream(number, entries, table);
    }

    private void WriteTable(int root, int info, byte[] identifier)
    {
        var text = new PdfBuffer();
        text.Raw("xref\n0 "u8).Int(_count).Raw("\n0000000000 65535 f \n"u8);
        for (int i = 1; i < _count; i++)
        {
            text.Ascii(_places[i].ToString("D10", System.Globalization.CultureInfo.InvariantCulture))
                .Raw(" 00000 n \n"u8);
        }

        text.Raw("trailer\n<<"u8);
        AppendTrailer(text, root, info, identifier);
        _output.Write(text.Raw(">>\n"u8).Bytes);
    }

    private void AppendTrailer(PdfBuffer text, int root, int info, byte[] identifier)
    {
        text.Raw("/Size "u8).Int(_count).Raw("/Root "u8).Ref(root).Raw("/Info "u8).Ref(info).Raw("/ID["u8);
        for (int i = 0; i < 2; i++)
        {
            text.Raw((byte)'<');
            Array.ForEach(identifier, one => text.Hex(one));
            text.Raw((byte)'>');
        }

        text.Raw((byte)']');
    }
}
