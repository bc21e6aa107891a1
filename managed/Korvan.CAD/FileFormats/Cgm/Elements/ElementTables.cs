using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>An element: its number in its class, its word in clear text, and what makes its command.</summary>
internal sealed record ElementEntry(int Id, string Keyword, Func<Command> Create);

/// <summary>All elements of ISO/IEC 8632, by class and number or by word.</summary>
internal static class ElementTables
{
    private static readonly ElementEntry[][] Tables =
    [
        DelimiterElements.Table, MetaFileDescriptorElements.Table, PictureDescriptorElements.Table, ControlElements.Table,
        GraphicalPrimitiveElements.Table, AttributeElements.Table,
        [new(1, "ESCAPE", static () => new Escape())],
        ExternalElements.Table, SegmentControlElements.Table, ApplicationStructureDescriptorElements.Table,
    ];

    private static readonly ElementEntry?[][] ByNumber = Array.ConvertAll(Tables, static table => Spread(table));
    private static readonly Dictionary<string, ElementEntry> ByWord = Words();

    internal static ElementEntry? Find(ClassCode elementClass, int id)
    {
        return (uint)elementClass < (uint)ByNumber.Length && (uint)id < (uint)ByNumber[(int)elementClass].Length
            ? ByNumber[(int)elementClass][id]
            : null;
    }

    /// <summary>Finds an element by its word without regard to case.</summary>
    /// <summary>Gets the entry of an element by its enumeration's value; throws where there is none.</summary>
    internal static ElementEntry Get<T>(ClassCode elementClass, T element)
        where T : struct, Enum =>
        Find(elementClass, Convert.ToInt32(element, CultureInfo.InvariantCulture))
        ?? throw Verify.OutOfRange(nameof(element), element, "No such element is known.");

    internal static ElementEntry? Find(string keyword) => ByWord.GetValueOrDefault(keyword);

    internal static string Keyword(ClassCode elementClass, int id) => Find(elementClass, id)?.Keyword ?? "";

    private static ElementEntry?[] Spread(ElementEntry[] table)
    {
        var spread = new ElementEntry?[table.Length == 0 ? 0 : table[^1].Id + 1];
        foreach (ElementEntry entry in table)
        {
            spread[entry.Id] = entry;
        }

        return spread;
    }

    private static Dictionary<string, ElementEntry> Words()
    {
        var words = new Dictionary<string, ElementEntry>(StringComparer.OrdinalIgnoreCase);
        foreach (ElementEntry[] table in Tables)
        {
            foreach (ElementEntry entry in table.Where(static entry => entry.Keyword.Length > 0))
            {
                words.Add(entry.Keyword, entry);
            }
        }

        return words;
    }
}
