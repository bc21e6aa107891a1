using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A property of a table or cell that goes before that of the style. Text files have it after a group code,
/// drawing databases where a flag announces it.</summary>
/// <param name="Bit">The flag.</param>
/// <param name="Code">The group code.</param>
/// <param name="Kind">The coding.</param>
internal readonly record struct TableOverride(int Bit, int Code, int Kind)
{
    internal const int Flag = 0;
    internal const int Short = 1;
    internal const int Number = 2;
    internal const int Color = 3;
    internal const int Style = 4;
    internal const int RawShort = 5;

    /// <summary>Nothing follows the flag: the property is set.</summary>
    internal const int Implied = 6;

    private const int PlainColor = 62;
    private const int TrueColor = 420;

    /// <summary>Gets the group code of the true colour that goes before a colour of the palette.</summary>
    internal int TrueColorCode => Code - PlainColor + TrueColor;

    /// <summary>Carries properties after whether there are any and the flags of those that there are.</summary>
    /// <param name="fields">What carries them.</param>
    /// <param name="list">The properties.</param>
    /// <param name="flags">The flags.</param>
    /// <param name="given">The values to write; those that are written are taken out.</param>
    /// <param name="found">Takes the values that are read.</param>
    internal static int ExchangeAll(
        BitExchange fields, TableOverride[] list, int flags, List<CadCodeValue> given, List<CadCodeValue> found)
    {
        if (!fields.Bit(flags != 0))
        {
            return 0;
        }

        flags = fields.BitLong(flags);
        ExchangeList(fields, list, flags, given, found);
        return flags;
    }

    /// <summary>Carries the properties that flags announce.</summary>
    internal static void ExchangeList(
        BitExchange fields, TableOverride[] list, int flags, List<CadCodeValue> given, List<CadCodeValue> found)
    {
        foreach (TableOverride item in list)
        {
            if ((flags & item.Bit) != 0)
            {
                item.Exchange(fields, given, found);
            }
        }
    }

    /// <summary>Takes the first value of a group code out of a list; null for none.</summary>
    internal static string? Take(List<CadCodeValue> tags, int code)
    {
        int index = tags.FindIndex(tag => tag.Attribute == code);
        if (index < 0)
        {
            return null;
        }

        string value = tags[index].Value;
        tags.RemoveAt(index);
        return value;
    }

    /// <summary>Returns a string as a number; 0 where it is none.</summary>
    internal static double Parse(string? text) => double.TryParse(
        text, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

    /// <summary>Returns a value with its group code.</summary>
    internal static CadCodeValue Tag(int code, double value) =>
        new(code, value.ToString("R", CultureInfo.InvariantCulture));

    private void Exchange(BitExchange fields, List<CadCodeValue> given, List<CadCodeValue> found)
    {
        string? value = Take(given, Code);
        switch (Kind)
        {
            case Flag:
                found.Add(Tag(Code, fields.Bit(Parse(value) != 0) ? 1 : 0));
                break;
            case Short:
                found.Add(Tag(Code, fields.BitShort((int)Parse(value))));
                break;
            case RawShort:
                found.Add(Tag(Code, fields.RawShort((int)Parse(value))));
                break;
            case Number:
                found.Add(Tag(Code, fields.BitDouble(Parse(value))));
                break;
            case Style:
                found.Add(new CadCodeValue(Code, fields.Name(SymbolTable.Style, value ?? "STANDARD")));
                break;
            case Implied:
                found.Add(Tag(Code, 1));
                break;
            default:
                ExchangeColor(fields, value, Take(given, TrueColorCode), found);
                break;
        }
    }

    private void ExchangeColor(BitExchange fields, string? value, string? trueColor, List<CadCodeValue> found)
    {
        (int index, int rgb, _) =
            fields.TrueColor((int)Parse(value), trueColor is null ? -1 : (int)Parse(trueColor), "");
        found.Add(Tag(Code, index));
        if (rgb >= 0)
        {
            found.Add(Tag(TrueColorCode, rgb));
        }
    }
}
