using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>Values of header records: strings and lists of strings.</summary>
internal static class HeaderText
{
    /// <summary>Returns a string; empty if the record has too few values.</summary>
    internal static string Text(object?[] values, int at) => at < values.Length ? values[at] as string ?? "" : "";

    /// <summary>Returns a list of strings.</summary>
    internal static List<string> Texts(object?[] values, int at) =>
        at < values.Length && values[at] is object?[] items ? [.. items.OfType<string>()] : [];

    internal static string Record(string name, params object[] values)
    {
        StringBuilder text = new();
        text.Append(name).Append('(');
        for (int i = 0; i < values.Length; i++)
        {
            text.Append(i > 0 ? "," : string.Empty);
            Write(values[i], text);
        }

        return text.Append(");").ToString();
    }

    private static void Write(object value, StringBuilder text)
    {
        if (value is string one)
        {
            StepStrings.Encode(one, text);
            return;
        }

        text.Append('(');
        int count = 0;
        foreach (string item in (IEnumerable<string>)value)
        {
            text.Append(count++ > 0 ? "," : string.Empty);
            StepStrings.Encode(item, text);
        }

        text.Append(')');
    }
}
