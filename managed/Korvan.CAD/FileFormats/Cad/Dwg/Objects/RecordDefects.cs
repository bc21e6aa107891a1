using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>What is wrong with the objects of a file. It is reported in the order of the objects, whichever thread read
/// them.</summary>
internal sealed class RecordDefects(DwgFile file)
{
    private const string Section = "AcDb:AcDbObjects";
    private const int LastPlainRelease = 2000;

    private List<Entry>? _entries;

    /// <summary>What is read of all objects before anything is read of the next stage.</summary>
    internal enum Stage
    {
        Header,
        Table,
        Content,
    }

    /// <summary>Gets whether there is no defect that can end the load.</summary>
    internal bool IsEmpty { get; private set; } = true;

    /// <summary>Adds that an object is damaged.</summary>
    internal void Add(Stage stage, int index, string type, DwgFault fault) => Add(new Entry(
        stage,
        index,
        LoadDefectCode.DamagedObject,
        PlaceOf(index, type),
        file.Release <= LastPlainRelease ? fault.Position >> 3 : -1,
        $"bit {fault.Position}: {fault.Message}"));

    /// <summary>Adds that an object has a wrong checksum.</summary>
    internal void AddChecksum(int index) => Add(new Entry(
        Stage.Header,
        index,
        LoadDefectCode.WrongChecksum,
        PlaceOf(index, "object"),
        file.Release <= LastPlainRelease ? file.Map.Offsets[index] : -1,
        "the record has another checksum than it states"));

    /// <summary>Adds that an object is kept as it is.</summary>
    internal void AddKept(int index, string type, DwgFault fault) => Add(new Entry(
        Stage.Content,
        index,
        LoadDefectCode.UnknownFields,
        PlaceOf(index, type),
        -1,
        $"bit {fault.Position}: {fault.Message}; the object is kept as it is"));

    /// <summary>Adds the defects of a part of the objects.</summary>
    internal void Add(RecordDefects part)
    {
        foreach (Entry entry in part._entries ?? [])
        {
            Add(entry);
        }
    }

    /// <summary>Reports all defects.</summary>
    /// <exception cref="ImageLoadException">A defect ends the load.</exception>
    internal void Report()
    {
        _entries?.Sort();
        foreach (Entry entry in _entries ?? [])
        {
            if (entry.Code == LoadDefectCode.UnknownFields)
            {
                LoadPlace place = new(file.Source.Name, 0, entry.Place, entry.Offset);
                file.Source.Options.Report(new LoadDefect(entry.Code, place, entry.Cause));
            }
            else
            {
                file.Source.Report(entry.Code, entry.Place, entry.Offset, entry.Cause);
            }
        }
    }

    private void Add(Entry entry)
    {
        (_entries ??= []).Add(entry);
        IsEmpty &= entry.Code == LoadDefectCode.UnknownFields;
    }

    private string PlaceOf(int index, string type) => $"{Section}, {type} {HandleText.Format(file.Map.Handles[index])}";

    private sealed record Entry(
        Stage Stage, int Index, LoadDefectCode Code, string Place, long Offset, string Cause) : IComparable<Entry>
    {
        // A checksum is looked at before the content.
        public int CompareTo(Entry? other) => other is null ? 1
            : (Stage, Index, Code != LoadDefectCode.WrongChecksum).CompareTo(
                (other.Stage, other.Index, other.Code != LoadDefectCode.WrongChecksum));
    }
}
