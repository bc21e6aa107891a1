using System;
using System.Collections;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Formats commands for people: the keyword and the parameters, as far as they are short.</summary>
internal static class CommandText
{
    internal static string Of(string keyword, params object?[] parameters) =>
        string.Join(' ', parameters.Select(Format).Prepend(keyword).Where(static part => part.Length > 0));

    private static string Format(object? value) => value switch
    {
        null => "None",
        string text => $"'{text}'",
        byte[] data => $"[{data.Length} bytes]",
        int[] cells => $"[{cells.Length} cells]",
        StructuredDataRecord record => $"[{record.Members.Count} members]",
        IEnumerable list => string.Join(' ', list.Cast<object?>().Select(Format)),
        IFormattable number => number.ToString(null, CultureInfo.InvariantCulture),
        _ => value.ToString() ?? "",
    };
}
