using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The handles of what the objects of a drawing refer to: records by their names, and which objects are
/// there.</summary>
internal sealed class WrittenHandles
{
    private static readonly (SymbolTable Table, string Name)[] Tables =
    [
        (SymbolTable.Layer, "LAYER"), (SymbolTable.LineType, "LTYPE"), (SymbolTable.Style, "STYLE"),
        (SymbolTable.DimensionStyle, "DIMSTYLE"), (SymbolTable.BlockRecord, "BLOCK_RECORD"),
        (SymbolTable.View, "VIEW"),
    ];

    private readonly Dictionary<SymbolTable, Dictionary<string, ulong>> _records = [];
    private readonly Dictionary<string, ulong> _applications = new(StringComparer.OrdinalIgnoreCase);
    private readonly List<string> _lineTypes = [];
    private readonly HashSet<ulong> _present;

    /// <summary>Collects the handles of a drawing.</summary>
    /// <param name="drawing">The drawing.</param>
    /// <param name="isWritten">Whether an object is written: references to others lead nowhere.</param>
    internal WrittenHandles(CadDrawing drawing, Predicate<CadBaseObject> isWritten)
    {
        _present = DrawingWalk.Handles(drawing, isWritten);
        foreach ((SymbolTable table, string name) in Tables)
        {
            Dictionary<string, ulong> records = new(StringComparer.OrdinalIgnoreCase);
            foreach (CadSymbolTableGroupCodes record in TableRecords.Of(drawing, name))
            {
                records.TryAdd(record.Name, record.Handle);
            }

            _records[table] = records;
        }

        foreach (CadSymbolTableGroupCodes record in drawing.AppIdTables.Items)
        {
            _applications.TryAdd(record.Name, record.Handle);
        }

        foreach (CadLineTypeTableObject lineType in drawing.LineTypes.Items)
        {
            if (!IsImplied(lineType.Name))
            {
                _lineTypes.Add(lineType.Name);
            }
        }
    }

    /// <summary>Determines whether a line type is not among those that the table counts.</summary>
    internal static bool IsImplied(string lineType) =>
        string.Equals(lineType, "BYLAYER", StringComparison.OrdinalIgnoreCase)
            || string.Equals(lineType, "BYBLOCK", StringComparison.OrdinalIgnoreCase);

    internal bool IsPresent(ulong handle) => handle != 0 && _present.Contains(handle);

    /// <summary>Returns the handle of a record by its name; 0 for none.</summary>
    internal ulong Find(SymbolTable table, string name) => _records[table].GetValueOrDefault(name);

    /// <summary>Returns the handle of a program that attached data; 0 for none.</summary>
    internal ulong Application(string name) => _applications.GetValueOrDefault(name);

    /// <summary>Returns the place of a line type in its table; -1 for none.</summary>
    internal int LineTypeIndex(string name) =>
        _lineTypes.FindIndex(known => string.Equals(known, name, StringComparison.OrdinalIgnoreCase));
}
