using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using System.Text;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>The rules that programs check before they take a text interchange file, on its tags alone.</summary>
internal sealed class DxfStructure
{
    private static readonly string[] Release12 =
    [
        "3DFACE", "ARC", "ATTDEF", "ATTRIB", "BLOCK", "CIRCLE", "DIMENSION", "ENDBLK", "INSERT", "LINE", "POINT",
        "POLYLINE", "SEQEND", "SHAPE", "SOLID", "TEXT", "TRACE", "VERTEX", "VIEWPORT",
    ];

    private const string NameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789$-_*|";

    private readonly List<Item> _items = [];
    private readonly string _name;

    internal DxfStructure(byte[] file, string name)
    {
        _name = name;
        string[] lines = Encoding.Latin1.GetString(file).Split("\r\n");
        string section = "";
        string table = "";
        for (int i = 0; i + 1 < lines.Length; i += 2)
        {
            int code = int.Parse(lines[i], NumberStyles.Integer, CultureInfo.InvariantCulture);
            string value = lines[i + 1];
            if (code == 0)
            {
                _items.Add(new Item(value, section, table));
                continue;
            }

            Item item = _items[^1];
            item.Tags.Add((code, value));
            section = item.Type == "SECTION" ? value : section;
            table = item.Type == "TABLE" && code == 2 ? value : table;
        }
    }

    internal void VerifyOwners()
    {
        Dictionary<string, Item> byHandle = VerifyHandles();
        foreach (Item item in _items.Where(static item => item.Handle is not null))
        {
            string? owner = item.Own(330);
            Check(owner is not null || item.Type is "TABLE" or "VIEWPORT", $"{item} has no owner");
            bool isRoot = item.Type is "TABLE" || item == _items.First(static one => one.Section == "OBJECTS");
            Check(owner is null || isRoot || byHandle.ContainsKey(owner), $"{item} has no owner {owner}");
        }

        foreach (Item dictionary in _items.Where(static item => item.Type is "DICTIONARY" or "ACDBDICTIONARYWDFLT"))
        {
            foreach (string entry in dictionary.All(350).Concat(dictionary.All(360)))
            {
                Check(byHandle.ContainsKey(entry), $"{dictionary} has the entry {entry}, which is not there");
            }
        }

        VerifySpaces(byHandle);
    }

    internal Dictionary<string, Item> VerifyHandles()
    {
        Dictionary<string, Item> byHandle = [];
        foreach (Item item in _items.Where(static item => item.Handle is not null))
        {
            Check(byHandle.TryAdd(item.Handle!, item), $"{item} has a handle that another has");
        }

        return byHandle;
    }

    /// <summary>Makes sure that tables have what entities name, and what every drawing has.</summary>
    internal void VerifyTables()
    {
        (int Code, string Table, string[] Implied)[] references =
        [
            (8, "LAYER", ["0"]), (6, "LTYPE", ["BYLAYER", "BYBLOCK", "CONTINUOUS"]), (7, "STYLE", ["STANDARD"]),
        ];
        foreach ((int code, string table, string[] implied) in references)
        {
            HashSet<string> names = new(implied, StringComparer.OrdinalIgnoreCase);
            names.UnionWith(Records(table).Select(static one => one.Own(2)!));
            foreach (Item item in _items.Where(static item => item.Section is "ENTITIES" or "BLOCKS"))
            {
                string? name = item.Own(code);
                Check(name is null || names.Contains(name), $"{item} names {name} of {table}");
            }
        }
    }

    /// <summary>Makes sure that nothing is there that release 12 does not have.</summary>
    /// <param name="hasNewNames">Whether names were made for that release; those of its own files are kept.</param>
    internal void VerifyRelease12(bool hasNewNames)
    {
        foreach (Item item in _items)
        {
            Check(item.Section is not ("ENTITIES" or "BLOCKS") || Release12.Contains(item.Type)
                || item.Type is "SECTION" or "ENDSEC" or "EOF", $"{item} came later");
            bool isNew = item.Tags.Exists(static tag => tag.Code is 100 or 102 or 330 or 360 or 420 or 370);
            Check(!isNew, $"{item} has new tags");
            bool isNamed = hasNewNames && item.Type is "LAYER" or "LTYPE" or "STYLE" or "BLOCK";
            foreach (string name in isNamed ? item.All(2) : [])
            {
                bool isValid = name.Length <= 31 && name.All(static c => NameCharacters.Contains(c));
                Check(isValid, $"{item} is named '{name}'");
            }
        }

        Assert.DoesNotContain("OBJECTS", _items.Select(static item => item.Section));
    }

    // Each block has a record, which owns it; model and paper space have a layout that knows its record.
    private void VerifySpaces(Dictionary<string, Item> byHandle)
    {
        Dictionary<string, Item> records = Records("BLOCK_RECORD").ToDictionary(
            static one => one.Own(2)!, StringComparer.OrdinalIgnoreCase);
        Check(records.ContainsKey("*Model_Space") && records.ContainsKey("*Paper_Space"), "a space has no record");
        foreach (Item block in _items.Where(static item => item.Type == "BLOCK"))
        {
            Check(records.TryGetValue(block.Own(2)!, out Item? record), $"{block} has no record");
            Check(block.Own(330) == record!.Handle, $"{block} is not owned by its record");
        }

        foreach (Item layout in _items.Where(static item => item.Type == "LAYOUT"))
        {
            string record = layout.All(330).Last();
            bool isThere = byHandle.TryGetValue(record, out Item? item) && item.Type == "BLOCK_RECORD";
            Check(isThere, $"{layout} has no block");
        }
    }

    private IEnumerable<Item> Records(string table) => _items.Where(item => item.Table == table && item.Type == table);

    private void Check(bool holds, string message) => Assert.True(holds, $"{_name}: {message}");

    internal sealed record Item(string Type, string Section, string Table)
    {
        internal List<(int Code, string Value)> Tags { get; } = [];

        internal string? Handle =>
            Type == "SECTION" || Section is "HEADER" or "CLASSES" or "THUMBNAILIMAGE" or "ACDSDATA"
                ? null
                : Own(Type == "DIMSTYLE" ? 105 : 5);

        public override string ToString() => $"{Type} {Handle}";

        /// <summary>Gets the first value of a group code that is in no group of an application.</summary>
        internal string? Own(int code)
        {
            bool inGroup = false;
            foreach ((int at, string value) in Tags)
            {
                inGroup = at == 102 ? value.StartsWith('{') : inGroup;
                if (!inGroup && at == code)
                {
                    return value;
                }

                if (at >= 1000)
                {
                    break;
                }
            }

            return null;
        }

        internal IEnumerable<string> All(int code) =>
            Tags.Where(tag => tag.Code == code).Select(static tag => tag.Value);
    }
}
