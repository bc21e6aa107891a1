using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>All elements that the metafile may have.</summary>
public sealed class MetafileElementList : Command
{
    /// <summary>The words of sets of elements, by their numbers in the class -1.</summary>
    private static readonly string[] Sets =
    [
        "DRAWINGSET", "DRAWINGPLUS", "VERSION2", "EXTDPRIM", "VERSION2GKSM", "VERSION3", "VERSION4",
    ];

    /// <summary>Creates the element with its defaults.</summary>
    public MetafileElementList()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MetafileElementList)
    {
    }

    /// <summary>Gets or sets the words of the elements. Sets of elements have words too: DRAWINGSET, DRAWINGPLUS,
    /// VERSION2, EXTDPRIM, VERSION2GKSM, VERSION3 and VERSION4. An element without word is given as
    /// <c>class,number</c>.</summary>
    public List<string> Elements { get; set; } = ["DRAWINGPLUS"];

    internal override void Exchange(ParameterExchange x)
    {
        if (x.IsClearText)
        {
            string words = x.String(string.Join(' ', Elements));
            Elements = [.. words.Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries)];
            return;
        }

        int count = x.Integer(Elements.Count);
        Elements = x.Counted(Elements, count, static (y, word) => ExchangeOne(y, word));
    }

    private static string ExchangeOne(ParameterExchange x, string? word)
    {
        (int elementClass, int id) = word is null ? (0, 0) : Numbers(word);
        return Word(x.Index(elementClass), x.Index(id));
    }

    private static string Word(int elementClass, int id)
    {
        string word = elementClass == -1
            ? Sets.ElementAtOrDefault(id) ?? ""
            : ElementTables.Keyword((ClassCode)elementClass, id);
        return word.Length > 0 ? word : FormattableString.Invariant($"{elementClass},{id}");
    }

    private static (int ElementClass, int Id) Numbers(string word)
    {
        int set = Array.FindIndex(Sets, each => each.Equals(word, StringComparison.OrdinalIgnoreCase));
        if (set >= 0)
        {
            return (-1, set);
        }

        if (ElementTables.Find(word) is { } entry)
        {
            Command command = entry.Create();
            return ((int)command.ElementClass, command.ElementId);
        }

        string[] numbers = word.Split(',');
        int id = 0;
        return numbers.Length == 2 && int.TryParse(numbers[0], out int elementClass) && int.TryParse(numbers[1], out id)
            ? (elementClass, id)
            : throw new CgmDataException($"no element has the word '{word}'");
    }
}
