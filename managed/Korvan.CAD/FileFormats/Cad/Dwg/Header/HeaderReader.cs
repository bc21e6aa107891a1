using System;
using System.Text;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>Reads the fields of the header and class sections; strings and references are apart from release 2007
/// on.</summary>
internal sealed class HeaderReader : HeaderStream
{
    private const int SizeBits = 32;
    private const int StringSizeBits = 16;
    private const int LongString = 0x8000;

    private readonly Encoding _encoding;
    private readonly bool _isSplit;
    private BitReader _data;
    private BitReader _strings;
    private BitReader _handles;

    /// <summary>Creates a reader of a section.</summary>
    /// <param name="bytes">The data of the section.</param>
    /// <param name="release">The release as a year.</param>
    /// <param name="encoding">The encoding of strings of 8-bit characters.</param>
    /// <exception cref="DwgFault">The sizes in the section are wrong.</exception>
    internal HeaderReader(ReadOnlyMemory<byte> bytes, int release, Encoding encoding)
    {
        Release = release;
        _encoding = encoding;
        _isSplit = release >= 2007;
        _data = new BitReader(bytes.ToArray());
        if (_isSplit)
        {
            Split();
        }
    }

    internal override int Release { get; }

    /// <summary>Gets how many bits of data are left.</summary>
    internal long Remaining => _data.Remaining;

    internal long Position => _data.Position;

    internal override bool Bit(bool value) => _data.Bit();

    internal override int BitShort(int value) => _data.BitShort();

    internal override int BitLong(int value) => _data.BitLong();

    internal override ulong BitLongLong(ulong value) => _data.BitLongLong();

    internal override int RawByte(int value) => _data.RawByte();

    internal override double BitDouble(double value) => _data.BitDouble();

    internal override double RawDouble(double value) => _data.RawDouble();

    internal override string Text(string value)
    {
        if (_isSplit)
        {
            return _strings.Remaining > 0 ? _strings.Utf16Text() : "";
        }

        string text = _data.Text(_encoding);
        return text.Contains('\\') ? TextEscapes.Standard.Decode(text) : text;
    }

    internal override ulong Handle(int code, ulong value) =>
        _isSplit ? _handles.Handle().Value : _data.Handle().Value;

    internal override ulong OwnHandle(ulong value) => _data.Handle().Value;

    // The size in bits counts from its own start. Before the end of the data, a bit states whether strings precede it.
    private void Split()
    {
        byte[] bytes = _data.Data;
        long end = (uint)_data.RawLong();
        if (end < SizeBits || end > _data.End)
        {
            throw new DwgFault(0, $"the data has {end} bits, the section {_data.End}");
        }

        _handles = new BitReader(bytes, end, _data.End);
        long at = end - 1;
        if (!new BitReader(bytes, at, end).Bit())
        {
            _data = new BitReader(bytes, SizeBits, at);
            return;
        }

        at -= StringSizeBits;
        long size = SizeAt(bytes, at);
        if ((size & LongString) != 0)
        {
            at -= StringSizeBits;
            size = (size & (LongString - 1)) | ((long)SizeAt(bytes, at) << 15);
        }

        if (size > at - SizeBits)
        {
            throw new DwgFault(at, $"strings of {size} bits, where {at - SizeBits} are left");
        }

        _strings = new BitReader(bytes, at - size, at);
        _data = new BitReader(bytes, SizeBits, at - size);
    }

    private static int SizeAt(byte[] bytes, long at) =>
        (ushort)new BitReader(bytes, Math.Max(at, 0), at + StringSizeBits).RawShort();
}
