using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the values of a visual style as drawing databases of release 2010 and later pack them.</summary>
/// <param name="fields">What carries them.</param>
/// <param name="form">The form of the fields.</param>
/// <param name="sources">The flags.</param>
internal sealed class VisualStyleBits(BitExchange fields, short form, List<int> sources)
    : VisualStyleWalk(fields.IsReading, form, sources)
{
    private const int FaceModifiers = 90;
    private const int TrueColor = 420;
    private const int Source = 176;

    // The values without names of release 2013: their types as group codes, and what styles have that do not state
    // them.
    private static readonly (int Code, string Value)[] Further =
    [
        (290, "1"), (290, "1"), (290, "0"), (290, "0"), (290, "0"), (290, "0"), (290, "0"), (290, "0"), (290, "0"),
        (90, "50"), (40, "0"), (40, "1"), (90, "0"), (62, "18"), (90, "50"), (90, "3"), (62, "5"), (290, "0"),
        (90, "50"), (90, "50"), (90, "50"), (290, "0"), (90, "50"), (62, "256"), (40, "1"), (90, "2"),
        (1, "strokes_ogs.tif"), (290, "0"), (40, "1"), (40, "1"),
    ];

    /// <summary>Carries the values without names, each with its flag.</summary>
    internal void ExchangeFurther(List<CadCodeValue> tags)
    {
        List<CadCodeValue> given = [.. tags];
        tags.Clear();
        int next = 0;
        foreach ((int code, string standard) in Further)
        {
            string value = Take(given, ref next, code) ?? standard;
            string trueColor = code == 62 ? Take(given, ref next, TrueColor) ?? "" : "";
            string source = Take(given, ref next, Source) ?? "1";
            (value, trueColor) = Carry(code, value, trueColor);
            tags.Add(new CadCodeValue(code, value));
            if (trueColor.Length > 0)
            {
                tags.Add(new CadCodeValue(TrueColor, trueColor));
            }

            tags.Add(new CadCodeValue(Source, Text(fields.BitShort((int)Parse(source)))));
        }
    }

    private protected override int CarryInteger(int code, int value) =>
        code == FaceModifiers ? fields.BitShort(value) : fields.BitLong(value);

    private protected override double CarryNumber(int code, double value) => fields.BitDouble(value);

    private protected override bool CarryBoolean(int code, bool value) => fields.Bit(value);

    private protected override (short Index, int Value) CarryColor(int code, int trueCode, short index, int value)
    {
        (int newIndex, int rgb, _) = fields.Color(index, value, "");
        return ((short)newIndex, rgb);
    }

    private protected override int CarrySource(int value) => fields.BitShort(value);

    private static string? Take(List<CadCodeValue> tags, ref int next, int code) =>
        next < tags.Count && tags[next].Attribute == code ? tags[next++].Value : null;

    private (string Value, string TrueColor) Carry(int code, string value, string trueColor)
    {
        switch (code)
        {
            case 290:
                return (fields.Bit(Parse(value) != 0) ? "1" : "0", "");
            case 40:
                return (Text(fields.BitDouble(Parse(value))), "");
            case 90:
                return (Text(fields.BitLong((int)Parse(value))), "");
            case 1:
                return (fields.Text(value), "");
            default:
                int before = trueColor.Length > 0 ? (int)Parse(trueColor) : -1;
                (int index, int rgb, _) = fields.Color((int)Parse(value), before, "");
                return (Text(index), rgb >= 0 ? Text(rgb) : "");
        }
    }

    private static double Parse(string value) => double.TryParse(
        value, NumberStyles.Float, CultureInfo.InvariantCulture, out double number) ? number : 0;

    private static string Text(double value) => value.ToString("R", CultureInfo.InvariantCulture);
}
