using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Takes the fields of an object for its record in a drawing database: data, strings and references
/// apart.</summary>
/// <param name="release">The release as a year.</param>
/// <param name="encoding">The encoding of strings of 8-bit characters.</param>
/// <param name="handles">The handles of what objects refer to.</param>
internal sealed class BitFieldWriter(int release, Encoding encoding, WrittenHandles handles) : BitExchange
{
    private const int UnicodeStrings = 2007;
    private const int TrueColors = 2004;
    private const int OwnedLists = 2004;
    private const int StatedCloning = 2000;

    private readonly Encoding _encoding = TextEscapes.Escaping(encoding);

    internal override int Release => release;

    internal override bool IsReading => false;

    internal BitWriter Data { get; } = new();

    internal BitWriter Strings { get; } = new();

    internal BitWriter References { get; } = new();

    /// <summary>Gets or sets the parts of the object that is written.</summary>
    internal ChildHandles Parts { get; set; } = new();

    /// <summary>Gets or sets what the object is called in messages.</summary>
    internal string Subject { get; set; } = "";

    /// <summary>Begins an object.</summary>
    internal void Begin(string subject)
    {
        Data.Clear();
        Strings.Clear();
        References.Clear();
        Subject = subject;
        HasStoredData = false;
    }

    internal override bool Bit(bool value)
    {
        Data.Bit(value);
        return value;
    }

    internal override int BitPair(int value)
    {
        Data.BitPair(value);
        return value;
    }

    internal override int BitShort(int value)
    {
        Data.BitShort(value);
        return value;
    }

    internal override int BitLong(int value)
    {
        Data.BitLong(value);
        return value;
    }

    internal override long BitLongLong(long value)
    {
        Data.BitLongLong((ulong)value);
        return value;
    }

    internal override double BitDouble(double value)
    {
        Data.BitDouble(Finite(value));
        return value;
    }

    internal override double DoubleAfter(double value, double before)
    {
        Data.DoubleAfter(Finite(value), before);
        return value;
    }

    internal override int RawByte(int value)
    {
        Data.RawByte(value);
        return value;
    }

    internal override int RawShort(int value)
    {
        Data.RawShort(value);
        return value;
    }

    internal override int RawLong(int value)
    {
        Data.RawLong(value);
        return value;
    }

    internal override double RawDouble(double value)
    {
        Data.RawDouble(Finite(value));
        return value;
    }

    internal override byte[] Bytes(byte[] value, int count)
    {
        Data.Raw(value.AsSpan(0, Math.Min(count, value.Length)));
        for (int i = value.Length; i < count; i++)
        {
            Data.RawByte(0);
        }

        return value;
    }

    internal override byte[] BytesUpTo(byte[] value, params byte[][] ends) => Bytes(value, value.Length);

    internal override string Text(string value)
    {
        string text = RecordText.ToFile(value);
        if (release >= UnicodeStrings)
        {
            Strings.Utf16Text(text);
        }
        else
        {
            Data.Text(text, _encoding);
        }

        return value;
    }

    internal override string CountedText(string value)
    {
        Encoding characters = release >= UnicodeStrings ? Encoding.Unicode : _encoding;
        byte[] bytes = value.Length == 0 ? [] : characters.GetBytes(RecordText.ToFile(value) + "\0");
        Data.BitLong(bytes.Length);
        Data.Raw(bytes);
        return value;
    }

    internal override string Handle(HandleRole role, string value)
    {
        Handle(role, HandleText.TryParse(value, out ulong handle) ? handle : 0);
        return value;
    }

    internal override ulong Handle(HandleRole role, ulong value)
    {
        References.Handle(CodeOf(role), handles.IsPresent(value) ? value : 0);
        return value;
    }

    internal override bool IsPresent(ulong handle) => handles.IsPresent(handle);

    internal override ulong PlainHandle(ulong value)
    {
        Data.Handle(0, value);
        return value;
    }

    internal override string Name(SymbolTable table, string value)
    {
        References.Handle(CodeOf(HandleRole.HardPointer), handles.Find(table, value));
        return value;
    }

    internal override string FindHandle(SymbolTable table, string name) =>
        HandleText.Format(handles.Find(table, name));

    internal override string LineTypeByIndex(string value)
    {
        const int byLayer = 0x7FFF;
        const int byBlock = 0x7FFE;
        Data.BitShort(value.ToUpperInvariant() switch
        {
            "BYLAYER" or "" => byLayer,
            "BYBLOCK" => byBlock,
            _ => handles.LineTypeIndex(value) is >= 0 and var index ? index : byLayer,
        });
        return value;
    }

    internal override (int Index, int Rgb, string Name) Color(int index, int rgb, string name)
    {
        if (release >= TrueColors)
        {
            return TrueColor(index, rgb, name);
        }

        Data.BitShort(index);
        return (index, rgb, name);
    }

    internal override (int Index, int Rgb, string Name) TrueColor(int index, int rgb, string name)
    {
        int separator = name.IndexOf('$');
        string book = separator >= 0 ? name[..separator] : "";
        string color = name[(separator + 1)..];
        Data.BitShort(0);
        Data.BitLong(unchecked((int)Objects.PackedColor.Pack(index, rgb)));
        Data.RawByte((color.Length > 0 ? 1 : 0) | (book.Length > 0 ? 2 : 0));
        _ = color.Length > 0 ? Text(color) : color;
        _ = book.Length > 0 ? Text(book) : book;
        return (index, rgb, name);
    }

    internal override int PackedColor(int value)
    {
        (int index, int rgb) = Objects.PackedColor.Unpack(0, (uint)value);
        if (release < TrueColors)
        {
            Data.BitShort(index);
            return value;
        }

        Data.BitShort(0);
        Data.BitLong(value);
        Data.RawByte(0);
        _ = rgb;
        return value;
    }

    internal override int Verify(int count) =>
        count >= 0 ? count : throw Fault($"{count} items are announced, which cannot be written");

    internal override void ChildCount(bool hasParts)
    {
        if (hasParts && release >= OwnedLists)
        {
            Data.BitLong(Parts.Owned.Count);
        }
    }

    internal override void Children(CadBaseObject owner)
    {
        WriteParts();
        Handle(HandleRole.HardOwner, Parts.End);
    }

    internal override void BlockParts(CadBaseObject owner, bool hasEntities)
    {
        Handle(HandleRole.HardOwner, Parts.Begin);
        if (hasEntities)
        {
            WriteParts();
        }

        Handle(HandleRole.HardOwner, Parts.End);
    }

    internal override void TypedTags(CadXRecord record, int cloningCode)
    {
        IList<CadCodeValue> tags = record.Data;
        bool hasCloning = tags.Count > 0 && tags[0].Attribute == cloningCode;
        byte[] data = RecordTagWriter.Write(tags, hasCloning ? 1 : 0, release, _encoding);
        Data.BitLong(data.Length);
        Data.Raw(data);
        if (release >= StatedCloning)
        {
            Data.BitShort(hasCloning && int.TryParse(
                tags[0].Value, NumberStyles.Integer, CultureInfo.InvariantCulture, out int cloning) ? cloning : 1);
        }
    }

    internal override Exception Fault(string cause) => new ImageSaveException($"{Subject}: {cause}.");

    internal override byte[] Rest(byte[] value, ref int bits)
    {
        // Text files may state another number of bits than they have.
        Data.Bits(value, (bits + 7L) >> 3 == value.Length ? bits : value.Length * 8L);
        return value;
    }

    internal override void RestOfHandles(IList<CadCodeValue> references)
    {
        foreach (CadCodeValue reference in references)
        {
            Handle(
                reference.Attribute switch
                {
                    340 => HandleRole.HardPointer,
                    350 => HandleRole.SoftOwner,
                    360 => HandleRole.HardOwner,
                    _ => HandleRole.SoftPointer,
                },
                reference.Value);
        }
    }

    internal override void AttributeKind(CadText attribute, int kind)
    {
        CadMText? lines = EmbeddedMText.FromTags(attribute.Embedded);
        Data.RawByte(lines is null ? 1 : kind);
        if (lines is not null)
        {
            CommonData.ExchangeEntity(this, lines, new ObjectFrame());
            lines.ExchangeBits(this);
            Data.BitShort(0);
        }
    }

    private static int CodeOf(HandleRole role) => role switch
    {
        HandleRole.SoftOwner => 2,
        HandleRole.HardOwner => 3,
        HandleRole.SoftPointer => 4,
        _ => 5,
    };

    private void WriteParts()
    {
        if (release < OwnedLists)
        {
            Handle(HandleRole.SoftPointer, Parts.Owned.Count > 0 ? Parts.Owned[0] : 0);
            Handle(HandleRole.SoftPointer, Parts.Owned.Count > 0 ? Parts.Owned[^1] : 0);
            return;
        }

        Parts.Owned.ForEach(part => Handle(HandleRole.HardOwner, part));
    }

    private double Finite(double value) => double.IsFinite(value) ? value : throw new ImageSaveException(
        $"{Subject} has the value {value.ToString(CultureInfo.InvariantCulture)}; drawings hold finite numbers only.");
}
