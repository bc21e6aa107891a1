using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads the data elements of a DICOM file up to its pixels (PS3.5 and PS3.10).</summary>
internal sealed class DicomReader
{
    private const int Preamble = 132;
    private const int MaxSequenceDepth = 16;
    private const int MaxTextBytes = 1024;

    private readonly RasterSource _source;
    private readonly Dictionary<uint, byte[]> _values = [];
    private int _at = Preamble;
    private bool _implicitTypes;

    private DicomReader(RasterSource source) => _source = source;

    internal string Name => _source.Name;

    internal RasterSource Source => _source;

    /// <summary>Gets the bytes of uncompressed pixels.</summary>
    internal ReadOnlyMemory<byte> PlainPixels { get; private set; }

    /// <summary>Gets the fragments of compressed pixels, without the offset table.</summary>
    internal List<ReadOnlyMemory<byte>>? Fragments { get; private set; }

    internal string Syntax => Text(DicomTags.TransferSyntax);

    internal static DecodedFile Read(RasterSource source)
    {
        var reader = new DicomReader(source);
        reader.ReadElements();
        return new DecodedFile { Format = FileFormat.Dicom, Frames = DicomFrames.Frames(reader) };
    }

    internal string Text(uint tag) =>
        _values.TryGetValue(tag, out byte[]? data) ? Encoding.ASCII.GetString(data).TrimEnd('\0', ' ') : "";

    internal int Number(uint tag, int missing) =>
        _values.TryGetValue(tag, out byte[]? data) && data.Length >= 2
            ? BinaryPrimitives.ReadUInt16LittleEndian(data) : missing;

    /// <summary>Returns the first number of a decimal string.</summary>
    internal double Real(uint tag, double missing)
    {
        string first = Text(tag).Split('\\')[0].Trim();
        return double.TryParse(first, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
            && double.IsFinite(value)
            ? value
            : missing;
    }

    internal ImageLoadException Damaged(string why) =>
        new($"'{_source.Name}' is no DICOM file that can be read: {why}.");

    private void ReadElements()
    {
        while (_at < _source.Data.Length)
        {
            uint tag = Tag(_at);
            if (tag >> 16 > 2 && !_implicitTypes && !_values.ContainsKey(0))
            {
                Begin();
            }

            (string type, uint length) = ReadHeader();
            if (tag == DicomTags.PixelData)
            {
                ReadPixels(length);
                return;
            }

            ReadValue(tag, type, length);
        }

        throw Damaged("it holds no pixels");
    }

    // The file meta group always states types; in the rest that depends on the transfer syntax.
    private void Begin()
    {
        _values[0] = [];
        _implicitTypes = Syntax == DicomTags.ImplicitLittleEndian;
        if (!DicomFrames.Reads(Syntax))
        {
            throw new ImageLoadException($"'{_source.Name}' has the transfer syntax '{Syntax}', which is not read.");
        }
    }

    private (string Type, uint Length) ReadHeader()
    {
        ReadOnlySpan<byte> header = Take(_at, 8);
        if (_implicitTypes && Tag(_at) >> 16 > 2)
        {
            _at += 8;
            return ("UN", BinaryPrimitives.ReadUInt32LittleEndian(header[4..]));
        }

        string type = Encoding.ASCII.GetString(header[4..6]);
        if (type is "OB" or "OW" or "OF" or "OD" or "OL" or "OV" or "SQ" or "UN" or "UT" or "UC" or "UR" or "SV"
            or "UV")
        {
            uint length = BinaryPrimitives.ReadUInt32LittleEndian(Take(_at + 8, 4));
            _at += 12;
            return (type, length);
        }

        _at += 8;
        return (type, BinaryPrimitives.ReadUInt16LittleEndian(header[6..]));
    }

    private void ReadValue(uint tag, string type, uint length)
    {
        if (length == DicomTags.UndefinedLength)
        {
            SkipSequence(0);
            return;
        }

        ReadOnlySpan<byte> data = Take(_at, length);
        _at += (int)length;
        if (type != "SQ" && length <= MaxTextBytes && tag >> 16 is 2 or 0x28)
        {
            _values[tag] = data.ToArray();
        }
    }

    private void SkipSequence(int depth)
    {
        if (depth > MaxSequenceDepth)
        {
            throw Damaged($"its sequences are nested more than {MaxSequenceDepth} deep");
        }

        while (true)
        {
            uint tag = Tag(_at);
            uint length = BinaryPrimitives.ReadUInt32LittleEndian(Take(_at + 4, 4));
            _at += 8;
            if (tag == DicomTags.SequenceEnd)
            {
                return;
            }

            if (tag != DicomTags.Item)
            {
                throw Damaged($"an item of a sequence was expected at {_at - 8}");
            }

            if (length == DicomTags.UndefinedLength)
            {
                SkipItem(depth);
                continue;
            }

            Take(_at, length);
            _at += (int)length;
        }
    }

    private void SkipItem(int depth)
    {
        while (Tag(_at) != DicomTags.ItemEnd)
        {
            (_, uint length) = ReadHeader();
            if (length == DicomTags.UndefinedLength)
            {
                SkipSequence(depth + 1);
                continue;
            }

            Take(_at, length);
            _at += (int)length;
        }

        _at += 8;
    }

    private void ReadPixels(uint length)
    {
        if (length != DicomTags.UndefinedLength)
        {
            int available = _source.Data.Length - _at;
            if (length > available && !_source.Lenient)
            {
                throw Damaged($"{length} bytes of pixels are announced, but {available} are left");
            }

            PlainPixels = _source.Data.AsMemory(_at, (int)Math.Min(length, available));
            return;
        }

        Fragments = [];
        while (Tag(_at) == DicomTags.Item)
        {
            uint size = BinaryPrimitives.ReadUInt32LittleEndian(Take(_at + 4, 4));
            Take(_at + 8, size);
            Fragments.Add(_source.Data.AsMemory(_at + 8, (int)size));
            _at += 8 + (int)size;
        }

        if (Fragments.Count < 2)
        {
            throw Damaged("its compressed pixels have no frames");
        }

        Fragments.RemoveAt(0);
    }

    private uint Tag(int place)
    {
        ReadOnlySpan<byte> data = Take(place, 4);
        uint group = BinaryPrimitives.ReadUInt16LittleEndian(data);
        return (group << 16) | BinaryPrimitives.ReadUInt16LittleEndian(data[2..]);
    }

    private ReadOnlySpan<byte> Take(long place, uint count)
    {
        return place + count <= _source.Data.Length
            ? _source.Data.AsSpan((int)place, (int)count)
            : throw Damaged($"it ends after {_source.Data.Length} bytes, inside of a data element");
    }
}
