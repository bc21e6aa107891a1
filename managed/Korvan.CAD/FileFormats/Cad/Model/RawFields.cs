using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Carries objects without a class between drawing databases and tags by a list of their fields. A field is a group
/// code and a coding (<c>40 BD</c>), in the order of text files. <c>100=AcDbText</c> is a tag that text files have
/// only; <c>2018+ 300 T</c> begins with a release; a field after <c>&gt;</c> stands in databases where <c>&lt;</c> is;
/// <c>n70 BL(10 3BD)</c> is the number of the fields in parentheses; <c>v90 BS</c> is a version, and fields as in
/// <c>if1+(90 BL)</c> are there from a version on, as in <c>if1-(90 BL)</c> up to one, and as in <c>if1=(90 BL)</c> in
/// this one only; <c>70 V</c> is the group code of a value, and the value.
/// </summary>
internal sealed partial class RawFields
{
    private readonly Field[] _fields;

    private RawFields(string list) => _fields = Field.ParseList(list);

    /// <summary>Returns the fields of the objects of a name; null where they are not known.</summary>
    internal static RawFields? Of(string name) => Lists.GetValueOrDefault(name);

    /// <summary>Returns the fields of a list.</summary>
    internal static RawFields Parse(string list) => new(list);

    /// <summary>Carries the fields.</summary>
    /// <param name="fields">What carries them.</param>
    /// <param name="tags">The tags to write; none where the object takes them over.</param>
    /// <returns>The tags.</returns>
    internal List<CadCodeValue> Exchange(BitExchange fields, List<CadCodeValue> tags)
    {
        Walk walk = new(fields, tags);
        walk.Carry(_fields);
        List<CadCodeValue> result = [];
        walk.Slots.ForEach(slot => result.AddRange(slot.Tags));
        return result;
    }

    /// <summary>Goes through a list of fields.</summary>
    private sealed class Walk(BitExchange fields, List<CadCodeValue> tags)
    {
        private readonly List<Slot> _deferred = [];
        private int _next;
        private int _version;

        internal List<Slot> Slots { get; } = [];

        internal void Carry(Field[] list)
        {
            foreach (Field field in list)
            {
                if (fields.Release >= field.Since)
                {
                    Carry(field);
                }
            }
        }

        private void Carry(Field field)
        {
            switch (field.Kind)
            {
                case FieldKind.Deferral:
                    _deferred.ForEach(slot => slot.Carry(fields));
                    return;
                case FieldKind.FromVersion when _version >= field.Code:
                case FieldKind.UpToVersion when _version <= field.Code:
                case FieldKind.OfVersion when _version == field.Code:
                    Carry(field.Items);
                    return;
                case FieldKind.FromVersion or FieldKind.UpToVersion or FieldKind.OfVersion:
                    return;
            }

            Slot slot = new(field, tags, ref _next);
            Slots.Add(slot);
            if (field.Kind == FieldKind.Deferred)
            {
                _deferred.Add(slot);
                return;
            }

            if (field.Kind == FieldKind.Count && !fields.IsReading)
            {
                slot.Limit(tags.Count);
            }

            slot.Carry(fields);
            if (field.Kind == FieldKind.Version)
            {
                _version = slot.Integer;
            }

            int count = field.Kind == FieldKind.Count ? fields.Verify(slot.Integer) : 0;
            for (int i = 0; i < count; i++)
            {
                Carry(field.Items);
            }
        }
    }

    private enum FieldKind
    {
        Plain,
        Deferred,
        Deferral,
        Count,
        Version,
        FromVersion,
        UpToVersion,
        OfVersion,
    }

    /// <summary>A field of the list.</summary>
    private sealed record Field(FieldKind Kind, int Code, string Coding, string Constant, int Since, Field[] Items)
    {
        internal static Field[] ParseList(string list)
        {
            List<Field> fields = [];
            int start = 0;
            int depth = 0;
            for (int i = 0; i <= list.Length; i++)
            {
                char c = i < list.Length ? list[i] : '|';
                depth += c == '(' ? 1 : c == ')' ? -1 : 0;
                if (c == '|' && depth == 0)
                {
                    fields.Add(Parse(list[start..i]));
                    start = i + 1;
                }
            }

            return [.. fields];
        }

        private static Field Parse(string text)
        {
            int open = text.IndexOf('(');
            Field[] items = open >= 0 ? ParseList(text[(open + 1)..^1]) : [];
            string plain = open >= 0 ? text[..open] : text;
            if (plain.StartsWith("if", StringComparison.Ordinal))
            {
                FieldKind bound = plain[^1] switch
                {
                    '+' => FieldKind.FromVersion,
                    '-' => FieldKind.UpToVersion,
                    _ => FieldKind.OfVersion,
                };
                return new Field(bound, Integer(plain[2..^1]), "", "", 0, items);
            }

            FieldKind kind = plain[0] switch
            {
                '<' => FieldKind.Deferral,
                '>' => FieldKind.Deferred,
                'n' => FieldKind.Count,
                'v' => FieldKind.Version,
                _ => FieldKind.Plain,
            };
            string[] parts = plain.TrimStart('<', '>', 'n', 'v').Split(' ');
            int since = parts.Length == 3 ? Integer(parts[0].TrimEnd('+')) : 0;
            string[] code = parts[parts.Length == 3 ? 1 : 0].Split('=');
            return new Field(
                kind,
                code[0].Length > 0 ? Integer(code[0]) : 0,
                code.Length > 1 ? "=" : parts[^1],
                code.Length > 1 ? code[1] : "",
                since,
                items);
        }

        private static int Integer(string text) => int.Parse(text, CultureInfo.InvariantCulture);
    }

    /// <summary>The values of a field.</summary>
    private sealed class Slot
    {
        private const int TrueColor = 420 - 62;
        private const int Marker = 100;

        private readonly Field _field;
        private readonly string[] _given;
        private readonly string _trueColor;
        private readonly AssocEvaluatedVariant _variant = new();

        internal Slot(Field field, List<CadCodeValue> tags, ref int next)
        {
            _field = field;
            int size = field.Coding switch { "2RD" => 2, "3BD" => 3, _ => 1 };
            _given = new string[size];
            for (int i = 0; i < size; i++)
            {
                _given[i] = field.Code == Marker ? TakeMarker(tags, field.Constant, ref next)
                    : Take(tags, field.Code + (10 * i), ref next);
            }

            bool isTrue = next < tags.Count && tags[next].Attribute == field.Code + TrueColor;
            _trueColor = field.Coding == "CMC" && isTrue ? tags[next++].Value.Trim() : "";
            if (field.Coding == "V")
            {
                TakeVariant(tags, ref next);
            }
        }

        internal List<CadCodeValue> Tags { get; } = [];

        /// <summary>Gets the value of an integer.</summary>
        internal int Integer => (int)Number(Tags[0].Value);

        /// <summary>Lowers a given value that is larger than another one.</summary>
        internal void Limit(int most) => _given[0] = Text(Math.Clamp(Number(_given[0]), 0, most));

        private static double Number(string text) => double.TryParse(
            text, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

        internal void Carry(BitExchange fields)
        {
            switch (_field.Coding)
            {
                case "=":
                    Add(_field.Constant);
                    break;
                case "T":
                    Add(fields.Text(_given[0]));
                    break;
                case "H":
                    Add(fields.Handle(RoleOf(_field.Code), _given[0].Length > 0 ? _given[0] : "0"));
                    break;
                case "CMC":
                    CarryColor(fields);
                    break;
                case "V":
                    CarryVariant(fields);
                    break;
                default:
                    CarryNumbers(fields);
                    break;
            }
        }

        private static HandleRole RoleOf(int code) => code switch
        {
            < 340 => HandleRole.SoftPointer,
            < 350 => HandleRole.HardPointer,
            < 360 => HandleRole.SoftOwner,
            _ => HandleRole.HardOwner,
        };

        // Tags that the list does not have are passed over, up to the next subclass.
        private static string Take(List<CadCodeValue> tags, int code, ref int next)
        {
            for (int i = next; i < tags.Count; i++)
            {
                if (tags[i].Attribute == code)
                {
                    next = i + 1;
                    return tags[i].Value.Trim();
                }

                if (tags[i].Attribute == Marker)
                {
                    break;
                }
            }

            return "";
        }

        private static string TakeMarker(List<CadCodeValue> tags, string name, ref int next)
        {
            int at = tags.FindIndex(next, tag => tag.Attribute == Marker && tag.Value.Trim() == name);
            next = at < 0 ? next : at + 1;
            return name;
        }

        private void TakeVariant(List<CadCodeValue> tags, ref int next)
        {
            int code = (int)Number(_given[0]);
            string value = code > 0 ? Take(tags, code, ref next) : "";
            bool isPoint = code is >= 10 and < 20;
            _variant.Code = (short)code;
            (_variant.Text, _variant.Number, _variant.Integer) = (value, Number(value), (int)Number(value));
            _variant.Point.X = Number(value);
            _variant.Point.Y = isPoint ? Number(Take(tags, code + 10, ref next)) : 0;
        }

        private void CarryVariant(BitExchange fields)
        {
            _variant.ExchangeBits(fields);
            int code = _variant.Code;
            Add(Text(code));
            switch (code)
            {
                case 0:
                    break;
                case >= 10 and < 20:
                    Tags.Add(new CadCodeValue(code, Text(_variant.Point.X)));
                    Tags.Add(new CadCodeValue(code + 10, Text(_variant.Point.Y)));
                    break;
                case (>= 40 and < 60) or (>= 140 and < 150):
                    Tags.Add(new CadCodeValue(code, Text(_variant.Number)));
                    break;
                case < 10 or 91 or (>= 300 and < 370):
                    Tags.Add(new CadCodeValue(code, _variant.Text));
                    break;
                default:
                    Tags.Add(new CadCodeValue(code, Text(_variant.Integer)));
                    break;
            }
        }

        private void CarryColor(BitExchange fields)
        {
            int rgb = _trueColor.Length > 0 ? (int)Number(_trueColor) : -1;
            (int index, rgb, _) = fields.Color((int)Number(_given[0]), rgb, "");
            Add(Text(index));
            if (rgb >= 0)
            {
                Tags.Add(new CadCodeValue(_field.Code + TrueColor, Text(rgb)));
            }
        }

        private void CarryNumbers(BitExchange fields)
        {
            for (int i = 0; i < _given.Length; i++)
            {
                double value = Number(_given[i]);
                value = _field.Coding switch
                {
                    "BS" => fields.BitShort((int)value),
                    "BL" => fields.BitLong((int)value),
                    "RC" => fields.RawByte((int)value),
                    "B" => fields.Bit(value != 0) ? 1 : 0,
                    "2RD" => fields.RawDouble(value),
                    _ => fields.BitDouble(value),
                };
                Tags.Add(new CadCodeValue(_field.Code + (10 * i), Text(value)));
            }
        }

        private void Add(string value) => Tags.Add(new CadCodeValue(_field.Code, value));

        private static string Text(double value) => value.ToString("R", CultureInfo.InvariantCulture);
    }
}
