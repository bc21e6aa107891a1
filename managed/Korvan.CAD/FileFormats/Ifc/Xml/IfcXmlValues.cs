using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using System.Text;
using System.Xml.Linq;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>Simple values of elements in the syntax of records.</summary>
internal static class IfcXmlValues
{
    /// <summary>Writes a value; <see langword="null"/> for text that is not of its kind.</summary>
    internal static string? Write(SchemaShape shape, string text)
    {
        string plain = text.Trim();
        return shape switch
        {
            SchemaShape.Text => Written(target => StepStrings.Encode(text, target)),
            SchemaShape.Real => Real(plain),
            SchemaShape.Integer => Integer(plain),
            SchemaShape.Boolean or SchemaShape.Logical => plain switch
            {
                "true" or "1" => ".T.",
                "false" or "0" => ".F.",
                "unknown" when shape == SchemaShape.Logical => ".U.",
                _ => null,
            },
            SchemaShape.Enumeration => plain.Length > 0 && plain.All(IsNameCharacter)
                ? $".{plain.ToUpperInvariant()}."
                : null,
            SchemaShape.Binary => plain.All(char.IsAsciiHexDigit) ? $"\"0{plain.ToUpperInvariant()}\"" : null,
            _ => null,
        };
    }

    /// <summary>Returns the elements of a list in the order of their pos attributes, if they have any.</summary>
    internal static IEnumerable<XElement> InOrder(XElement list)
    {
        return list.Elements().OrderBy(static element =>
            int.TryParse(element.Attribute("pos")?.Value, NumberStyles.None, CultureInfo.InvariantCulture, out int at)
                ? at
                : int.MaxValue);
    }

    private static string? Integer(string text)
    {
        const NumberStyles style = NumberStyles.AllowLeadingSign;
        return long.TryParse(text, style, CultureInfo.InvariantCulture, out long value)
            ? value.ToString(CultureInfo.InvariantCulture)
            : null;
    }

    private static string? Real(string text)
    {
        const NumberStyles style =
            NumberStyles.AllowLeadingSign | NumberStyles.AllowDecimalPoint | NumberStyles.AllowExponent;
        return double.TryParse(text, style, CultureInfo.InvariantCulture, out double value) && double.IsFinite(value)
            ? Written(target => StepNumbers.WriteReal(value, target))
            : null;
    }

    private static bool IsNameCharacter(char one) => char.IsAsciiLetterOrDigit(one) || one == '_';

    private static string Written(Action<StringBuilder> write)
    {
        StringBuilder text = new();
        write(text);
        return text.ToString();
    }
}
