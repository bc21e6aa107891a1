using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Carries objects without a class between drawing databases and tags by a list of their fields. A field is a group
/// code and a coding (<c>40 BD</c>), in the order of text files. <c>100=AcDbText</c> is a tag that text files have
/// only; <c>2018+ 300 T</c> begins with a release; a field after <c>&gt;</c> stands in databases where <c>&lt;</c> is;
/// <c>n70 BL</c> is the number of the fields after it that begin with <c>*</c>.
/// </summary>
internal sealed class RawFields
{
    private const string ViewStyle = "100=AcDbModelDocViewStyle|70 BS|3 T|290 B|2018+ 300 T|2018+ 90 BL|";
    private const string Context =
        "100=AcDbObjectContextData|70 BS|290 B|100=AcDbAnnotScaleObjectContextData|340 H|";

    private static readonly Dictionary<string, RawFields> Lists = new()
    {
        ["ACDBDETAILVIEWSTYLE"] = new(ViewStyle + "100=AcDbDetailViewStyle|70 BS|71=0|90 BL|71=1|340 H|62 CMC|40 BD|"
            + ">340 H|>62 CMC|>40 BD|300 T|40 BD|280 RC|<|71=2|340 H|90 BL|62 CMC|71=3|340 H|62 CMC|40 BD|90 BL|40 BD|"
            + "90 BL|300 T|71=4|340 H|90 BL|62 CMC|340 H|90 BL|62 CMC|280 RC"),
        ["ACDB_TEXTOBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbTextObjectContextData|70 BS|50 BD|10 2RD|11 2RD"),
        ["ACDB_LEADEROBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbLeaderObjectContextData|n70 BL|*10 3BD|11 3BD|290 B|12 3BD|13 3BD"),
        ["ACDB_BLKREFOBJECTCONTEXTDATA_CLASS"] = new(
            Context + "100=AcDbBlkrefObjectContextData|50 BD|10 3BD|41 BD|42 BD|43 BD"),
        ["ACDB_FCFOBJECTCONTEXTDATA_CLASS"] = new(Context + "100=AcDbFcfObjectContextData|10 3BD|11 3BD"),
    };

    private readonly Field[] _fields;

    private RawFields(string list) => _fields = Array.ConvertAll(list.Split('|'), Field.Parse);

    /// <summary>Returns the fields of the objects of a name; null where they are not known.</summary>
    internal static RawFields? Of(string name) => Lists.GetValueOrDefault(name);

    /// <summary>Carries the fields.</summary>
    /// <param name="fields">What carries them.</param>
    /// <param name="tags">The tags to write; none where the object takes them over.</param>
    /// <returns>The tags.</returns>
    internal List<CadCodeValue> Exchange(BitExchange fields, List<CadCodeValue> tags)
    {
        List<Slot> slots = [];
        List<Slot> deferred = [];
        int next = 0;
        int repeated = 0;
        foreach (Field field in _fields)
        {
            if (fields.Release < field.Since)
            {
                continue;
            }

            if (field.Code == 0)
            {
                deferred.ForEach(slot => slot.Carry(fields));
                continue;
            }

            int times = field.IsRepeated ? repeated : 1;
            for (int i = 0; i < times; i++)
            {
                Slot slot = new(field, tags, ref next);
                slots.Add(slot);
                if (field.IsDeferred)
                {
                    deferred.Add(slot);
                }
                else
                {
                    slot.Carry(fields);
                }
            }

            repeated = field.IsCount ? fields.Verify((int)Slot.Number(slots[^1].Tags[0].Value)) : repeated;
        }

        List<CadCodeValue> result = [];
        slots.ForEach(slot => result.AddRange(slot.Tags));
        return result;
    }

    /// <summary>A field of the list.</summary>
    private sealed record Field(
        int Code, string Coding, string Constant, int Since, bool IsDeferred, bool IsCount, bool IsRepeated)
    {
        internal static Field Parse(string text)
        {
            if (text == "<")
            {
                return new Field(0, "", "", 0, false, false, false);
            }

            string[] parts = text.Split(' ');
            int since = parts.Length == 3 ? int.Parse(parts[0].TrimEnd('+'), CultureInfo.InvariantCulture) : 0;
            string[] code = (parts.Length == 3 ? parts[1] : parts[0]).Split('=');
            return new Field(
                int.Parse(code[0].TrimStart('>', 'n', '*'), CultureInfo.InvariantCulture),
                code.Length > 1 ? "=" : parts[^1],
                code.Length > 1 ? text[(text.IndexOf('=') + 1)..] : "",
                since,
                text[0] == '>',
                text[0] == 'n',
                text[0] == '*');
        }
    }

    /// <summary>The values of a field.</summary>
    private sealed class Slot
    {
        private const int TrueColor = 420 - 62;
        private const int Marker = 100;

        private readonly Field _field;
        private readonly string[] _given;
        private readonly string _trueColor;

        internal Slot(Field field, List<CadCodeValue> tags, ref int next)
        {
            _field = field;
            int size = field.Coding switch { "2RD" => 2, "3BD" => 3, _ => 1 };
            _given = new string[size];
            for (int i = 0; i < size; i++)
            {
                _given[i] = Take(tags, field.Code + (10 * i), ref next);
            }

            bool isTrue = next < tags.Count && tags[next].Attribute == field.Code + TrueColor;
            _trueColor = field.Coding == "CMC" && isTrue ? tags[next++].Value.Trim() : "";
        }

        internal List<CadCodeValue> Tags { get; } = [];

        internal static double Number(string text) => double.TryParse(
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
