using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Gives an object the fields that a record of a drawing database has for it. Source: Open Design
/// Specification for .dwg files, 5.4.1, chapters 2 and 20.</summary>
/// <param name="release">The release as a year.</param>
/// <param name="encoding">The encoding of strings of 8-bit characters.</param>
/// <param name="names">The names of the records of symbol tables.</param>
internal sealed class BitFieldReader(int release, Encoding encoding, RecordNames names) : BitExchange
{
    private const int UnicodeStrings = 2007;
    private const int TrueColors = 2004;
    private const int OwnedLists = 2004;
    private const int StatedCloning = 2000;

    private readonly RecordFormat _format = new(release, encoding, names);
    private BitReader _data;
    private BitReader _strings;
    private BitReader _handles;
    private ulong _self;
    private int _childCount;
    private ulong _named;
    private string? _name;

    internal override int Release => release;

    internal override bool IsReading => true;

    /// <summary>Gets the references to the parts of the object; null for an object without.</summary>
    internal ChildHandles? Parts { get; private set; }

    internal override long DataRemaining => _data.Remaining;

    private Encoding StringEncoding => release >= UnicodeStrings ? Encoding.Unicode : encoding;

    /// <summary>Gets how many bits of references are left.</summary>
    internal long HandlesRemaining => _handles.Remaining;

    /// <summary>Gets the bit of the data that is read next.</summary>
    internal long Position => _data.Position;

    /// <summary>Gets the reference that is read next, as a bit.</summary>
    internal long HandlesPosition => _handles.Position;

    /// <summary>Gets the bit after the data and the strings.</summary>
    internal long DataEnd { get; private set; }

    /// <summary>Begins the data of an object.</summary>
    /// <param name="self">Its handle, which other handles are relative to.</param>
    /// <param name="data">Its data, from its first own field on.</param>
    internal void Begin(ulong self, BitReader data)
    {
        _self = self;
        _data = data;
        Parts = null;
        HasStoredData = false;
    }

    /// <summary>Sets where the references of the object begin: there its data ends.</summary>
    internal void SetHandles(long start, long end)
    {
        byte[] bytes = _data.Data;
        if (start < _data.Position || start > end)
        {
            throw new DwgFault(_data.Position, $"the references begin at bit {start}, outside of the object");
        }

        DataEnd = start;
        _handles = new BitReader(bytes, start, end);
        _data = new BitReader(bytes, _data.Position, start);
        if (release >= UnicodeStrings)
        {
            FindStrings();
        }
    }

    internal override bool Bit(bool value) => _data.Bit();

    internal override int BitPair(int value) => _data.BitPair();

    internal override int BitShort(int value) => _data.BitShort();

    internal override int BitLong(int value) => _data.BitLong();

    internal override long BitLongLong(long value) => (long)_data.BitLongLong();

    internal override double BitDouble(double value) => Finite(_data.BitDouble());

    internal override double DoubleAfter(double value, double before) => Finite(_data.DoubleAfter(before));

    internal override int RawByte(int value) => _data.RawByte();

    internal override int RawShort(int value) => _data.RawShort();

    internal override int RawLong(int value) => _data.RawLong();

    internal override double RawDouble(double value) => Finite(_data.RawDouble());

    internal override byte[] Bytes(byte[] value, int count) => _data.Bytes(count);

    internal override string Text(string value)
    {
        string text = release < UnicodeStrings ? _data.Text(encoding)
            : _strings.Remaining > 0 ? _strings.Utf16Text() : "";
        return RecordText.FromFile(text);
    }

    internal override string CountedText(string value)
    {
        byte[] bytes = _data.Bytes(CountLong(0));
        return RecordText.FromFile(StringEncoding.GetString(bytes).TrimEnd('\0'));
    }

    internal override string Handle(HandleRole role, string value)
    {
        ulong handle = NextHandle();
        return handle != 0 ? HandleText.Format(handle) : value.Length == 0 ? "" : "0";
    }

    internal override ulong Handle(HandleRole role, ulong value) => NextHandle();

    internal override ulong PlainHandle(ulong value) => _data.Handle().Value;

    // Entities that follow each other are mostly on one layer.
    internal override string Name(SymbolTable table, string value)
    {
        ulong handle = NextHandle();
        if (handle != _named)
        {
            (_named, _name) = (handle, names.Find(handle));
        }

        return _name ?? value;
    }

    internal override string? FindName(string handle) =>
        HandleText.TryParse(handle, out ulong value) ? names.Find(value) : null;

    internal override string LineTypeByIndex(string value) => _data.BitShort() switch
    {
        0x7FFF => "BYLAYER",
        0x7FFE => "BYBLOCK",
        var index => names.LineType(index) ?? value,
    };

    internal override (int Index, int Rgb, string Name) Color(int index, int rgb, string name) =>
        release < TrueColors ? (_data.BitShort(), -1, "") : TrueColor(index, rgb, name);

    internal override (int Index, int Rgb, string Name) TrueColor(int index, int rgb, string name)
    {
        int plain = _data.BitShort();
        uint value = (uint)_data.BitLong();
        int flags = _data.RawByte();
        string color = (flags & 1) != 0 ? Text("") : "";
        string book = (flags & 2) != 0 ? Text("") : "";
        string full = book.Length > 0 ? $"{book}${color}" : color;
        return Objects.PackedColor.Unpack(plain, value) is var (found, trueColor) ? (found, trueColor, full) : default;
    }

    internal override int Verify(int count)
    {
        long bits = Math.Max(_data.Remaining, Math.Max(_strings.Remaining, _handles.Remaining));
        return count >= 0 && count <= bits ? count : throw new DwgFault(
            _data.Position, $"{count} items are announced, but only {bits} bits follow");
    }

    internal override void ChildCount(bool hasParts) =>
        _childCount = hasParts && release >= OwnedLists ? CountLong(0) : 0;

    internal override void Children(CadBaseObject owner)
    {
        Parts = new ChildHandles();
        ReadChildren(Parts);
        Parts.End = NextHandle();
    }

    internal override void BlockParts(CadBaseObject owner, bool hasEntities)
    {
        Parts = new ChildHandles { Begin = NextHandle() };
        if (hasEntities)
        {
            ReadChildren(Parts);
        }

        Parts.End = NextHandle();
    }

    internal override void TypedTags(CadXRecord record, int cloningCode)
    {
        byte[] data = _data.Bytes((long)_data.BitLong());
        RecordTags.Verify(data, _format);
        CadCodeValue? cloning = release < StatedCloning ? null
            : new CadCodeValue(cloningCode, _data.BitShort().ToString(CultureInfo.InvariantCulture));
        record.Defer(new StoredTags(data, cloning, _format));
    }

    internal override Exception Fault(string cause) => new DwgFault(_data.Position, cause);

    internal override byte[] Rest(byte[] value, ref int bits)
    {
        bits = (int)_data.Remaining;
        byte[] bytes = new byte[(bits + 7) >> 3];
        _data.Bytes(bytes.AsSpan(0, bits >> 3));
        for (int i = 0; i < (bits & 7); i++)
        {
            bytes[^1] |= (byte)(_data.Bit() ? 0x80 >> i : 0);
        }

        return bytes;
    }

    internal override void RestOfHandles(IList<CadCodeValue> handles)
    {
        while (_handles.Remaining >= 8)
        {
            BitReader ahead = _handles;
            int group = ahead.Handle().Code switch { 2 => 350, 3 => 360, 5 => 340, _ => 330 };
            handles.Add(new CadCodeValue(group, HandleText.Format(NextHandle())));
        }
    }

    internal override byte[] BytesUpTo(byte[] value, params byte[][] ends)
    {
        BitReader ahead = _data;
        byte[] rest = ahead.Bytes(_data.Remaining >> 3);
        int length = -1;
        foreach (byte[] end in ends)
        {
            int at = rest.AsSpan().IndexOf(end);
            length = at >= 0 && (length < 0 || at + end.Length < length) ? at + end.Length : length;
        }

        return length >= 0 ? _data.Bytes(length) : throw new DwgFault(_data.Position, "the data of a solid has no end");
    }

    internal override int PackedColor(int value)
    {
        int index = _data.BitShort();
        if (release < TrueColors)
        {
            return (int)Objects.PackedColor.Pack(index, -1);
        }

        int packed = _data.BitLong();
        int flags = _data.RawByte();
        _ = (flags & 1) != 0 ? Text("") : "";
        _ = (flags & 2) != 0 ? Text("") : "";
        return packed;
    }

    internal override void AttributeKind(CadText attribute, int kind)
    {
        const int annotative = 8;
        if (_data.RawByte() < 2)
        {
            return;
        }

        CadMText lines = new();
        CommonData.ExchangeEntity(this, lines, new ObjectFrame());
        lines.ExchangeBits(this);
        int size = _data.BitShort();
        if (size > 0)
        {
            _data.VerifyCount(size, annotative);
            _data.Position += (long)size << 3;
            NextHandle();
            _data.BitShort();
        }

        KeptTags.Of(attribute).Embedded = EmbeddedMText.ToTags(lines);
        if (attribute.DefaultValue.Length == 0)
        {
            attribute.DefaultValue = PlainText.FromMText(lines.Text).Replace("\n", "^J");
        }
    }

    /// <summary>Reads the next reference; 0 for none.</summary>
    internal ulong NextHandle()
    {
        (int code, ulong value) = _handles.Handle();
        return code switch
        {
            6 => _self + 1,
            8 => _self - 1,
            0xA => _self + value,
            0xC => _self - value,
            _ => value,
        };
    }

    private void ReadChildren(ChildHandles parts)
    {
        if (release < OwnedLists)
        {
            parts.First = NextHandle();
            parts.Last = NextHandle();
        }

        for (int i = 0; i < _childCount; i++)
        {
            parts.Owned.Add(NextHandle());
        }
    }

    // The last bit of the data says whether there are strings, which end before their length.
    private void FindStrings()
    {
        const int length = 16;
        _strings = default;
        long end = _data.End - 1;
        if (end < _data.Position)
        {
            throw new DwgFault(end, "the object has no room for its strings");
        }

        byte[] bytes = _data.Data;
        bool hasStrings = new BitReader(bytes, end, end + 1).Bit();
        _data = new BitReader(bytes, _data.Position, end);
        if (!hasStrings)
        {
            return;
        }

        end -= length;
        long size = (ushort)new BitReader(bytes, end, end + length).RawShort();
        if ((size & 0x8000) != 0)
        {
            end -= length;
            size = (size & 0x7FFF) | ((long)(ushort)new BitReader(bytes, end, end + length).RawShort() << 15);
        }

        if (size > end - _data.Position)
        {
            throw new DwgFault(end, $"strings of {size} bits, where {end - _data.Position} are left");
        }

        _strings = new BitReader(bytes, end - size, end);
        _data = new BitReader(bytes, _data.Position, end - size);
    }

    // Some programs wrote the width of a view that they did not know.
    private static double Finite(double value) => double.IsFinite(value) ? value : 0;
}
