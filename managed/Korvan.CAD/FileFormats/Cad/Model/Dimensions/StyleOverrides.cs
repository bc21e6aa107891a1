using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// Puts the variables into a style that an entity changes. The extended data of the application ACAD has them as
/// pairs of a group code and a value, in braces after the string DSTYLE (DXF reference, "Dimension style overrides").
/// </summary>
internal sealed class StyleOverrides : ObjectExchange
{
    private const string Application = "ACAD";
    private const string Begin = "DSTYLE";

    // Group codes of the record itself.
    private const int RecordName = 2;
    private const int RecordFlags = 70;

    private readonly Dictionary<int, string> _values;

    private StyleOverrides(Dictionary<int, string> values) => _values = values;

    internal override int Release => int.MaxValue;

    internal override bool IsReading => true;

    /// <summary>Returns a copy of a style with the changes of an entity, or the style itself where there are
    /// none.</summary>
    internal static CadDimensionStyleTable Apply(CadDimensionStyleTable style, CadEntityBase entity)
    {
        Dictionary<int, string>? values = Read(entity.XdataOrNull?.Find(Application));
        if (values is null)
        {
            return style;
        }

        CadDimensionStyleTable copy = new();
        MemoryExchange fields = new(style.Name);
        style.Exchange(fields);
        fields.Rewind();
        copy.Exchange(fields);
        copy.Exchange(new StyleOverrides(values));
        return copy;
    }

    private static Dictionary<int, string>? Read(CadXdata? data)
    {
        List<CadCodeValue> tags = data is null ? [] : [.. data.Data];
        int at = tags.FindIndex(static tag => tag.Attribute == 1000 && tag.Value.Trim() == Begin);
        if (at < 0)
        {
            return null;
        }

        Dictionary<int, string> values = [];
        for (int i = at + 2; i + 1 < tags.Count && tags[i].Attribute == 1070; i += 2)
        {
            if (int.TryParse(tags[i].Value, NumberStyles.Integer, CultureInfo.InvariantCulture, out int code)
                && code is not (RecordName or RecordFlags))
            {
                values[code] = tags[i + 1].Value;
            }
        }

        return values.Count > 0 ? values : null;
    }

    internal override void BeginSubclass(string name)
    {
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => true;

    internal override bool Bool(int code, bool value) => Whole(code, value ? 1 : 0) != 0;

    internal override short Int16(int code, short value) =>
        (short)System.Math.Clamp(Whole(code, value), short.MinValue, short.MaxValue);

    internal override int Int32(int code, int value) =>
        (int)System.Math.Clamp(Whole(code, value), int.MinValue, int.MaxValue);

    internal override long Int64(int code, long value) => Whole(code, value);

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value) =>
        _values.TryGetValue(code, out string? text)
            && double.TryParse(text, NumberStyles.Float, CultureInfo.InvariantCulture, out double own)
            && double.IsFinite(own) ? own : value;

    internal override double Angle(int code, double value) => Double(code, value);

    internal override void Point(int code, Cad2DPoint point)
    {
    }

    internal override void Point(int code, Cad3DPoint point)
    {
    }

    internal override string Text(int code, string value) => _values.TryGetValue(code, out string? own) ? own : value;

    internal override string Name(int code, SymbolTable table, string value) => value;

    internal override string Handle(int code, HandleRole role, string value) => Text(code, value);

    internal override ulong Handle(int code, HandleRole role, ulong value) => value;

    internal override byte[] Binary(int code, byte[] value) => value;

    internal override int Count(int code, int count) => count;

    internal override string LongText(int pieceCode, int lastCode, string value) => value;

    internal override void Lines(List<string> lines)
    {
    }

    internal override void Brace(int code, string text)
    {
    }

    internal override void Tags(IList<CadCodeValue> tags)
    {
    }

    private long Whole(int code, long value) => _values.TryGetValue(code, out string? text)
        && long.TryParse(text, NumberStyles.Integer, CultureInfo.InvariantCulture, out long own) ? own : value;
}
