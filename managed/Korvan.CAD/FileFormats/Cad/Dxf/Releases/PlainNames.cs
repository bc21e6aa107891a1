using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Gives records and blocks names that release 12 allows: at most 31 capital letters, digits, dollar signs,
/// hyphens and underscores, each name once in its table. Blocks without a name have an asterisk before it.</summary>
internal sealed class PlainNames(CadDrawing drawing, List<string> changes)
{
    private const int MaxLength = 31;
    private const int XdataLayer = 1003;

    private static readonly (string Variable, SymbolTable Table)[] Variables =
    [
        ("$CLAYER", SymbolTable.Layer), ("$CELTYPE", SymbolTable.LineType), ("$TEXTSTYLE", SymbolTable.Style),
        ("$DIMSTYLE", SymbolTable.DimensionStyle), ("$DIMBLK", SymbolTable.BlockRecord),
        ("$DIMBLK1", SymbolTable.BlockRecord), ("$DIMBLK2", SymbolTable.BlockRecord),
    ];

    private readonly Dictionary<SymbolTable, Dictionary<string, string>> _names = [];
    private readonly Dictionary<string, string> _applications = new(StringComparer.OrdinalIgnoreCase);

    internal void Apply()
    {
        RenameRecords(drawing.Layers.Items, SymbolTable.Layer);
        RenameRecords(drawing.LineTypes.Items, SymbolTable.LineType);
        RenameRecords(drawing.Styles.Items, SymbolTable.Style);
        RenameRecords(drawing.DimensionStyles.Items, SymbolTable.DimensionStyle);
        Rename(drawing.Views.Items, new(StringComparer.OrdinalIgnoreCase));
        Rename(drawing.UCSs.Items, new(StringComparer.OrdinalIgnoreCase));
        Rename(drawing.AppIdTables.Items, _applications);
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            block.Name = NameOf(SymbolTable.BlockRecord, block.Name);
            block.NameAgain = block.Name;
        }

        var fields = new NameExchange(NameOf);
        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            item.Exchange(fields);
            item.XdataOrNull?.XdataEntities.ForEach(Rename);
        }

        drawing.DimensionStyles.Items.ForEach(RenameArrows);
        foreach ((string variable, SymbolTable table) in Variables)
        {
            if (drawing.Header.GetString(variable) is { Length: > 0 } name)
            {
                drawing.Header.Set(variable, 0, NameOf(table, name));
            }
        }
    }

    private void RenameRecords(IReadOnlyList<CadSymbolTableGroupCodes> records, SymbolTable table) =>
        Rename(records, NamesOf(table));

    // Names that are valid keep what they have, whatever others become.
    private void Rename(IReadOnlyList<CadSymbolTableGroupCodes> records, Dictionary<string, string> names)
    {
        foreach (CadSymbolTableGroupCodes record in records)
        {
            if (string.Equals(Valid(record.Name, MaxLength), record.Name, StringComparison.OrdinalIgnoreCase))
            {
                Mapped(names, record.Name);
            }
        }

        foreach (CadSymbolTableGroupCodes record in records)
        {
            record.StoreName(Mapped(names, record.Name));
        }
    }

    private void Rename(CadXdata data)
    {
        data.RegisteredApplicationName = Mapped(_applications, data.RegisteredApplicationName);
        foreach (CadCodeValue tag in data.Data)
        {
            if (tag.Attribute == XdataLayer)
            {
                tag.Value = NameOf(SymbolTable.Layer, tag.Value);
            }
        }
    }

    private void RenameArrows(CadDimensionStyleTable style)
    {
        style.DimblkName = NameOf(SymbolTable.BlockRecord, style.DimblkName);
        style.Dimblk1Name = NameOf(SymbolTable.BlockRecord, style.Dimblk1Name);
        style.Dimblk2Name = NameOf(SymbolTable.BlockRecord, style.Dimblk2Name);
    }

    private string NameOf(SymbolTable table, string name) =>
        name.Length == 0 ? name : Mapped(NamesOf(table), name);

    private Dictionary<string, string> NamesOf(SymbolTable table)
    {
        if (!_names.TryGetValue(table, out Dictionary<string, string>? names))
        {
            _names.Add(table, names = new(StringComparer.OrdinalIgnoreCase));
        }

        return names;
    }

    private string Mapped(Dictionary<string, string> names, string name)
    {
        if (names.TryGetValue(name, out string? known))
        {
            return known;
        }

        bool isAnonymous = names == NamesOf(SymbolTable.BlockRecord) && name.StartsWith('*');
        string valid = isAnonymous ? "*" + Valid(name[1..], MaxLength - 1) : Valid(name, MaxLength);
        string unique = valid;
        for (int number = 1; names.ContainsValue(unique); number++)
        {
            string suffix = $"_{number}";
            unique = valid[..Math.Min(valid.Length, MaxLength - suffix.Length)] + suffix;
        }

        names.Add(name, unique);
        if (!string.Equals(name, unique, StringComparison.OrdinalIgnoreCase))
        {
            changes.Add($"name '{name}': written as {unique}");
        }

        return unique;
    }

    // A bar stands after the name of an external reference.
    private static string Valid(string name, int maxLength)
    {
        StringBuilder valid = new(name.Length);
        foreach (char character in name.ToUpperInvariant())
        {
            bool isAllowed = char.IsAsciiLetterOrDigit(character) || character is '$' or '-' or '_' or '|';
            valid.Append(isAllowed ? character : '_');
        }

        return valid.Length > maxLength ? valid.ToString(0, maxLength) : valid.ToString();
    }
}
