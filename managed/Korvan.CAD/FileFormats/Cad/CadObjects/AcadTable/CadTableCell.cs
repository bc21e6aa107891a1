using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A cell of a table: a value as text, or a block.</summary>
public partial class CadTableCell
{
    /// <summary>The group code that begins a cell.</summary>
    internal const int Start = 171;

    /// <summary>The group code of the block of a cell.</summary>
    internal const int BlockRecord = 340;

    // From this release on cells have values of several types.
    private const int ValueRelease = 2007;

    private const int ValueStart = 301;
    private const int ValueEnd = 304;
    private const short TextCell = 1;
    private const int TextValue = 4;
    private const int SetValue = 6;
    private const int EmptyValue = 7;

    // Block, attributes and overrides, in the order of the file.
    private readonly List<CadCodeValue> _content = [];

    // The value of a cell whose value is not a text.
    private readonly List<CadCodeValue> _value = [];

    private string _text = "";
    private int _valueFlags = EmptyValue;
    private int _extendedFlags;
    private bool _inValue;

    /// <summary>Creates an empty text cell.</summary>
    public CadTableCell()
    {
    }

    /// <summary>Gets or sets what the cell holds: 1 a text, 2 a block. Group code 171.</summary>
    [CadShort(171)]
    public short CellType { get; set; } = TextCell;

    /// <summary>Gets or sets flags of the cell. Group code 172.</summary>
    [CadShort(172)]
    public short CellFlags { get; set; }

    /// <summary>Gets or sets whether the cell is covered by one that it was merged with: 0 no, 1 yes. Group code
    /// 173.</summary>
    [CadShort(173)]
    public short IsMerged { get; set; }

    /// <summary>Gets or sets whether a block is scaled to the cell: 0 no, 1 yes. Group code 174.</summary>
    [CadShort(174)]
    public short AutoFit { get; set; }

    /// <summary>Gets or sets how many columns a merged cell covers. Group code 175.</summary>
    [CadShort(175)]
    public short MergedWidth { get; set; } = 1;

    /// <summary>Gets or sets how many rows a merged cell covers. Group code 176.</summary>
    [CadShort(176)]
    public short MergedHeight { get; set; } = 1;

    /// <summary>Gets or sets which properties go before those of the table, a bit for each. Group codes 91 and,
    /// before release 2007, 177.</summary>
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets which edges are shared with a merged neighbour, a bit for each. Group code
    /// 178.</summary>
    public short VirtualEdgeFlags { get; set; }

    /// <summary>Gets or sets the rotation of the content, in radians. Group code 145.</summary>
    public double Rotation { get; set; }

    /// <summary>Gets or sets the handle of the field that gives the text, in hexadecimal; empty for none. Group code
    /// 344.</summary>
    public string FieldHandle { get; set; } = "";

    /// <summary>Gets or sets the text, with its formatting codes; empty where the cell has another value. Group codes 1
    /// and 2.</summary>
    public string Text
    {
        get => _text;
        set
        {
            Verify.NotNull(value);
            StoreText(value);
        }
    }

    /// <summary>Gets or sets the type of the value: 0 none, 1 an integer, 2 a number, 4 a text, 8 a date, 16 and 32
    /// points, 64 an object. Group code 90.</summary>
    public int ValueType { get; set; }

    /// <summary>Gets or sets the unit of the value: 0 none, 1 a distance, 2 an angle, 4 an area, 8 a volume. Group
    /// code 94.</summary>
    public int ValueUnit { get; set; }

    /// <summary>Gets or sets the format that the value is shown in. Group code 300.</summary>
    public string ValueFormat { get; set; } = "";

    /// <summary>Gets or sets the value as it is shown. Group code 302.</summary>
    public string FormattedText { get; set; } = "";

    /// <summary>Gets the handle of the block record of a block cell in hexadecimal; empty for none. Group
    /// code 340.</summary>
    public string BlockRecordHandle => _content.Find(static tag => tag.Attribute == BlockRecord)?.Value ?? "";

    /// <summary>Takes a field over that the cell has, or keeps it.</summary>
    internal bool ReadOrKeep(int code, FieldReader reader)
    {
        if (!ReadField(code, reader))
        {
            _content.Add(reader.ToCodeValue());
        }

        return true;
    }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = _inValue ? ReadValue(code, reader) : ReadOwn(code, reader);
    }

    private bool ReadOwn(int code, FieldReader reader)
    {
        switch (code)
        {
            case 91 or 177:
                OverrideFlags = reader.GetInt();
                return true;
            case 178:
                VirtualEdgeFlags = reader.GetShort();
                return true;
            case 145:
                Rotation = reader.GetDouble();
                return true;
            case 344:
                FieldHandle = reader.GetHandleText();
                return true;
            case 1 or 2:
                StoreText(_text + reader.GetString());
                return true;
            case 92:
                _extendedFlags = reader.GetInt();
                return true;
            case ValueStart:
                _inValue = true;
                return true;
            default:
                return false;
        }
    }

    private bool ReadValue(int code, FieldReader reader)
    {
        switch (code)
        {
            case 93:
                _valueFlags = reader.GetInt();
                return true;
            case 90:
                ValueType = reader.GetInt();
                return true;
            case 1 or 2:
                _text += reader.GetString();
                return true;
            case 94:
                ValueUnit = reader.GetInt();
                return true;
            case 300:
                ValueFormat = reader.GetString();
                return true;
            case 302 or 303:
                FormattedText += reader.GetString();
                return true;
            case ValueEnd:
                _inValue = false;
                return true;
            default:
                _value.Add(reader.ToCodeValue());
                return true;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        OverrideFlags = fields.Int32(fields.Release >= ValueRelease ? 91 : 177, OverrideFlags);
        VirtualEdgeFlags = fields.Int16(178, VirtualEdgeFlags);
        Rotation = fields.Double(145, Rotation);
        if (fields.Includes(0, FieldHandle.Length > 0))
        {
            FieldHandle = fields.Handle(344, HandleRole.HardPointer, FieldHandle);
        }

        if (fields.Includes(0, fields.Release < ValueRelease && CellType == TextCell))
        {
            _text = fields.LongText(2, 1, _text);
        }

        fields.Tags(_content);
        if (fields.Includes(ValueRelease, true))
        {
            _extendedFlags = fields.Int32(92, _extendedFlags);
            ExchangeValue(fields);
        }
    }

    private void ExchangeValue(ObjectExchange fields)
    {
        fields.Brace(ValueStart, "CELL_VALUE");
        _valueFlags = fields.Int32(93, _valueFlags);
        ValueType = fields.Int32(90, ValueType);
        if (fields.Includes(0, ValueType == TextValue))
        {
            _text = fields.LongText(2, 1, _text);
        }

        fields.Tags(_value);
        ValueUnit = fields.Int32(94, ValueUnit);
        ValueFormat = fields.Text(300, ValueFormat);
        FormattedText = fields.LongText(303, 302, FormattedText);
        fields.Brace(ValueEnd, "ACVALUE_END");
    }

    private void StoreText(string text)
    {
        _text = text;
        _value.Clear();
        FormattedText = text;
        (ValueType, _valueFlags) = text.Length > 0 ? (TextValue, SetValue) : (0, EmptyValue);
    }
}
