using System.Text;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>Writes the fields of the header and class sections.</summary>
/// <param name="release">The release as a year.</param>
/// <param name="encoding">The encoding of strings of 8-bit characters.</param>
internal sealed class HeaderWriter(int release, Encoding encoding) : HeaderStream
{
    private const int SizeBits = 32;
    private const int LongString = 0x8000;

    private readonly bool _isSplit = release >= 2007;
    private readonly Encoding _encoding = TextEscapes.Escaping(encoding);
    private readonly BitWriter _data = new();
    private readonly BitWriter _strings = new();
    private readonly BitWriter _handles = new();

    internal override int Release => release;

    /// <summary>Returns the data of the section, without the sizes before and the checksum after it.</summary>
    internal byte[] ToArray()
    {
        if (!_isSplit)
        {
            return _data.ToArray();
        }

        BitWriter section = new();
        long size = _strings.Position;
        long sizeBits = size == 0 ? 0 : size < LongString ? 16 : 32;
        section.RawLong((int)(SizeBits + _data.Position + size + sizeBits + 1));
        section.Bits(_data.Bytes, _data.Position);
        section.Bits(_strings.Bytes, size);
        if (size >= LongString)
        {
            section.RawShort((int)(size >> 15));
        }

        if (size > 0)
        {
            section.RawShort((int)(size < LongString ? size : (size & (LongString - 1)) | LongString));
        }

        section.Bit(size > 0);
        section.Bits(_handles.Bytes, _handles.Position);
        return section.ToArray();
    }

    internal override bool Bit(bool value)
    {
        _data.Bit(value);
        return value;
    }

    internal override int BitShort(int value)
    {
        _data.BitShort(value);
        return value;
    }

    internal override int BitLong(int value)
    {
        _data.BitLong(value);
        return value;
    }

    internal override ulong BitLongLong(ulong value)
    {
        _data.BitLongLong(value);
        return value;
    }

    internal override int RawByte(int value)
    {
        _data.RawByte(value);
        return value;
    }

    internal override double BitDouble(double value)
    {
        _data.BitDouble(value);
        return value;
    }

    internal override double RawDouble(double value)
    {
        _data.RawDouble(value);
        return value;
    }

    internal override string Text(string value)
    {
        if (_isSplit)
        {
            _strings.Utf16Text(value);
        }
        else
        {
            _data.Text(value, _encoding);
        }

        return value;
    }

    internal override ulong Handle(int code, ulong value)
    {
        (_isSplit ? _handles : _data).Handle(code, value);
        return value;
    }

    internal override ulong OwnHandle(ulong value)
    {
        _data.Handle(0, value);
        return value;
    }
}
