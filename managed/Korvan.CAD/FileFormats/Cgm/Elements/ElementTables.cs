using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>An element: its class, its number there, its keyword in clear text, and what creates its command.</summary>
internal sealed record ElementEntry(ClassCode Class, int Id, string Keyword, Func<Command> Create);

/// <summary>All elements of ISO/IEC 8632, by class and number or by keyword.</summary>
internal static class ElementTables
{
    private const int MaxClasses = 16;

    private static readonly ElementEntry?[][] ByNumber =
        [.. Enumerable.Range(0, MaxClasses).Select(static number => Spread((ClassCode)number))];

    private static readonly Dictionary<string, ElementEntry> ByKeyword = ElementEntries.All
        .Where(static entry => entry.Keyword.Length > 0)
        .ToDictionary(static entry => entry.Keyword, StringComparer.OrdinalIgnoreCase);

    internal static ElementEntry? Find(ClassCode elementClass, int id)
    {
        return (uint)elementClass < MaxClasses && (uint)id < (uint)ByNumber[(int)elementClass].Length
            ? ByNumber[(int)elementClass][id]
            : null;
    }

    /// <summary>Finds an element by its keyword without regard to case.</summary>
    internal static ElementEntry? Find(string keyword) => ByKeyword.GetValueOrDefault(keyword);

    /// <summary>Returns the entry of an element by its enum value; throws where there is none.</summary>
    internal static ElementEntry Get<T>(ClassCode elementClass, T element)
        where T : struct, Enum =>
        Find(elementClass, Convert.ToInt32(element, CultureInfo.InvariantCulture))
        ?? throw Verify.OutOfRange(nameof(element), element, "No such element is known.");

    internal static string Keyword(ClassCode elementClass, int id) => Find(elementClass, id)?.Keyword ?? "";

    private static ElementEntry?[] Spread(ClassCode elementClass)
    {
        ElementEntry[] entries = Array.FindAll(ElementEntries.All, entry => entry.Class == elementClass);
        var spread = new ElementEntry?[entries.Select(static entry => entry.Id + 1).DefaultIfEmpty().Max()];
        foreach (ElementEntry entry in entries)
        {
            spread[entry.Id] = entry;
        }

        return spread;
    }
}
