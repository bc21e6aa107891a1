using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <content>The fields in drawing databases up to release 2007. Source: Open Design Specification for .dwg files,
/// 5.4.1, section 20.4.96.1.</content>
public partial class CadTableCell
{
    internal const short BlockCell = 2;
    internal const int BlockScale = 144;
    internal const int AttributeCount = 179;
    internal const int AttributeDefinition = 331;
    internal const int AttributeText = 300;

    private const int GeneralValue = 512;

    private static readonly TableOverride[] CellOverrides =
    [
        new(0x1, 170, TableOverride.RawShort), new(0x2, 283, TableOverride.Flag), new(0x4, 63, TableOverride.Color),
        new(0x8, 64, TableOverride.Color), new(0x10, 7, TableOverride.Style), new(0x20, 140, TableOverride.Number),
        new(0x40, 69, TableOverride.Color), new(0x400, 279, TableOverride.Short),
        new(0x4000, 289, TableOverride.Short), new(0x80, 65, TableOverride.Color),
        new(0x800, 275, TableOverride.Short), new(0x8000, 285, TableOverride.Short),
        new(0x100, 66, TableOverride.Color), new(0x1000, 276, TableOverride.Short),
        new(0x10000, 286, TableOverride.Short), new(0x200, 68, TableOverride.Color),
        new(0x2000, 278, TableOverride.Short), new(0x20000, 288, TableOverride.Short),
    ];

    /// <summary>Gets block, attributes and properties that go before those of the style, with their group
    /// codes.</summary>
    internal List<CadCodeValue> Content => _content;

    private (short, short, short, short, double, int, string, string, int, int) Shown => (
        CellType, IsMerged, MergedWidth, MergedHeight, Rotation, OverrideFlags, FieldHandle, _text, ValueType,
        ValueUnit);

    /// <summary>Returns the properties that go before those of the table, by their flags.</summary>
    internal Dictionary<int, StatedValue> StatedProperties() =>
        StatedValue.Take(CellOverrides, OverrideFlags, [.. _content]);

    /// <summary>Carries the cell.</summary>
    internal void ExchangeBits(BitExchange fields)
    {
        List<CadCodeValue> given = [.. _content];
        List<CadCodeValue> found = [];
        CellType = (short)fields.BitShort(CellType);
        CellFlags = (short)fields.RawByte(CellFlags);
        IsMerged = (short)fields.Flag(IsMerged);
        AutoFit = (short)fields.Flag(AutoFit);
        MergedWidth = (short)fields.BitLong(MergedWidth);
        MergedHeight = (short)fields.BitLong(MergedHeight);
        Rotation = fields.BitDouble(Rotation);
        if (CellType == BlockCell)
        {
            ExchangeBlock(fields, given, found);
        }
        else
        {
            FieldHandle = NoneAsEmpty(fields.Handle(HandleRole.HardPointer, FieldHandle));
            StoreOldText(fields, IsPresent(FieldHandle, fields));
        }

        ExchangeOverrides(fields, given, found);
        if (fields.Release >= ValueRelease)
        {
            _extendedFlags = fields.BitLong(_extendedFlags);
            CadFieldData value = fields.IsReading ? new CadFieldData() : ToValue();
            value.ExchangeBits(fields);
            StoreRead(fields, value);
        }

        if (fields.IsReading)
        {
            _content.AddRange(found);
        }
    }

    /// <summary>Takes the value of a cell over.</summary>
    internal void FromValue(CadFieldData value)
    {
        _value.Clear();
        _valueFlags = value.Flags;
        ValueType = value.ValueType;
        ValueUnit = value.Unit;
        ValueFormat = value.Format;
        FormattedText = value.FormattedText;
        switch (value.ValueType & ~GeneralValue)
        {
            case TextValue:
                _text = value.Text;
                break;
            case 1:
                _value.Add(TableOverride.Tag(91, value.Integer));
                break;
            case 2:
                _value.Add(TableOverride.Tag(140, value.Number));
                break;
            case 8:
                _value.Add(TableOverride.Tag(92, value.Date.Length));
                _value.Add(new CadBinaryCodeValue(310, Convert.ToHexString(value.Date)));
                break;
            case 16 or 32:
                _value.Add(TableOverride.Tag(11, value.Point.X));
                _value.Add(TableOverride.Tag(21, value.Point.Y));
                _value.Add(TableOverride.Tag(31, value.Point.Z));
                break;
            case 64:
                _value.Add(new CadCodeValue(330, value.ObjectHandle));
                break;
        }
    }

    /// <summary>Returns the value of the cell.</summary>
    internal CadFieldData ToValue()
    {
        List<CadCodeValue> tags = [.. _value];
        CadFieldData value = new()
        {
            Flags = _valueFlags,
            ValueType = ValueType,
            Unit = ValueUnit,
            Format = ValueFormat,
            FormattedText = FormattedText,
            Text = _text,
            Integer = (int)TableOverride.Parse(TableOverride.Take(tags, 91)),
            Number = TableOverride.Parse(TableOverride.Take(tags, 140)),
            ObjectHandle = TableOverride.Take(tags, 330) ?? "0",
        };
        value.Point.X = TableOverride.Parse(TableOverride.Take(tags, 11));
        value.Point.Y = TableOverride.Parse(TableOverride.Take(tags, 21));
        value.Point.Z = TableOverride.Parse(TableOverride.Take(tags, 31));
        if (TableOverride.Take(tags, 310) is { } date)
        {
            value.Date = Convert.FromHexString(date.Trim());
        }

        return value;
    }

    /// <summary>Determines whether another cell shows the same.</summary>
    internal bool IsSame(CadTableCell other) => Shown == other.Shown
        && (ValueFormat, FormattedText) == (other.ValueFormat, other.FormattedText)
        && HasSame(_content, other._content) && HasSame(_value, other._value);

    private static bool HasSame(List<CadCodeValue> one, List<CadCodeValue> other) => one.Count == other.Count
        && one.Zip(other).All(static pair =>
            pair.First.Attribute == pair.Second.Attribute && pair.First.Value == pair.Second.Value);

    private static string NoneAsEmpty(string handle) => handle == "0" ? "" : handle;

    // A field that is not written is no reference, after which readers expect the text.
    private static bool IsPresent(string handle, BitExchange fields) => fields.IsReading ? handle.Length > 0
        : HandleText.TryParse(handle, out ulong value) && fields.IsPresent(value);

    private void StoreOldText(BitExchange fields, bool hasField)
    {
        if (hasField)
        {
            return;
        }

        string text = fields.Text(_text);
        if (fields.IsReading)
        {
            StoreText(text);
        }
    }

    private void StoreRead(BitExchange fields, CadFieldData value)
    {
        if (fields.IsReading)
        {
            FromValue(value);
        }
    }

    private void ExchangeBlock(BitExchange fields, List<CadCodeValue> given, List<CadCodeValue> found)
    {
        string handle = fields.Handle(HandleRole.HardPointer, TableOverride.Take(given, BlockRecord) ?? "0");
        found.Add(new CadCodeValue(BlockRecord, handle));
        double scale = TableOverride.Take(given, BlockScale) is { } stated ? TableOverride.Parse(stated) : 1;
        found.Add(TableOverride.Tag(BlockScale, fields.BitDouble(scale)));
        int count = given.Count(static tag => tag.Attribute == AttributeDefinition);
        if (!fields.Bit(count > 0))
        {
            return;
        }

        count = fields.CountShort(count);
        found.Add(TableOverride.Tag(AttributeCount, count));
        for (int i = 0; i < count; i++)
        {
            string definition =
                fields.Handle(HandleRole.SoftPointer, TableOverride.Take(given, AttributeDefinition) ?? "0");
            fields.BitShort(i + 1);
            found.Add(new CadCodeValue(AttributeDefinition, definition));
            found.Add(new CadCodeValue(
                AttributeText, fields.Text(TableOverride.Take(given, AttributeText) ?? "")));
        }
    }

    private void ExchangeOverrides(BitExchange fields, List<CadCodeValue> given, List<CadCodeValue> found)
    {
        if (!fields.Bit(OverrideFlags != 0 || VirtualEdgeFlags != 0))
        {
            return;
        }

        OverrideFlags = fields.BitLong(OverrideFlags);
        VirtualEdgeFlags = (short)fields.RawByte(VirtualEdgeFlags);
        TableOverride.ExchangeList(fields, CellOverrides, OverrideFlags, given, found);
    }
}
