using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>The names in the tables of a drawing, which records refer to by their indexes.</summary>
internal sealed class EarlyNames
{
    private const int LateByLayer = 32767;
    private const int LateByBlock = 32766;
    private const int ByLayer = 256;
    private const int ByBlock = 255;

    internal List<string> Blocks { get; } = [];

    internal List<string> Layers { get; } = [];

    internal List<string> Styles { get; } = [];

    internal List<string> LineTypes { get; } = [];

    internal List<string> CoordinateSystems { get; } = [];

    internal List<string> Applications { get; } = [];

    internal List<string> DimensionStyles { get; } = [];

    /// <summary>Returns the list of a table; null for tables that nothing refers to.</summary>
    internal List<string>? Of(EarlyTableType table) => table.Name switch
    {
        "BLOCK" => Blocks,
        "LAYER" => Layers,
        "STYLE" => Styles,
        "LTYPE" => LineTypes,
        "UCS" => CoordinateSystems,
        "APPID" => Applications,
        "DIMSTYLE" => DimensionStyles,
        _ => null,
    };

    /// <summary>Returns the line type of an index.</summary>
    internal string LineType(int index, EarlyBytes bytes) => index switch
    {
        ByBlock or LateByBlock => "BYBLOCK",
        ByLayer or LateByLayer => "BYLAYER",
        _ => Find(LineTypes, index, "line type", bytes) ?? "BYLAYER",
    };

    /// <summary>Returns the name of a dimension style; that of changed settings without a name is stated as
    /// -1.</summary>
    internal string? DimensionStyle(int index, EarlyBytes bytes) =>
        index == -1 ? "*UNNAMED" : Find(DimensionStyles, index, "dimension style", bytes);

    /// <summary>Returns a name of a list; null for an index beyond it, which is a defect.</summary>
    internal static string? Find(List<string> names, int index, string what, EarlyBytes bytes)
    {
        if (index >= 0 && index < names.Count)
        {
            return names[index];
        }

        if (!bytes.AllowsUnresolved)
        {
            bytes.Report(
                LoadDefectCode.UnresolvedReference,
                bytes.Position,
                $"a record refers to the {what} number {index}, but there are {names.Count}");
        }

        return null;
    }

    /// <summary>Returns the name of a layer that has a number only.</summary>
    internal static string OfLayer(int number) => number.ToString(CultureInfo.InvariantCulture);

    /// <summary>Returns the name of a block. Files have an asterisk and a character for blocks that programs make;
    /// their index completes it.</summary>
    internal static string OfBlock(string name, int index) =>
        name is ['*', _] ? name + index.ToString(CultureInfo.InvariantCulture) : name;
}
