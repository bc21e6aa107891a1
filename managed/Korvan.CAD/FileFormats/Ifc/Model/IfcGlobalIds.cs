using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Finds instances by their GlobalId. The first searches scan the bytes of the file, which costs less than an
/// index; the index is built when there are more.</summary>
internal sealed class IfcGlobalIds(IfcModel model)
{
    private const int SearchesBeforeTable = 16;

    private readonly IfcClass _root = model.Schema.FindClass("IfcRoot")!;
    private Dictionary<string, int>? _table;
    private int _searches;

    internal IfcEntityBase? Find(string globalId)
    {
        foreach (IfcEntityBase entity in model.Changed.Concat(model.Added))
        {
            if (IsNamed(entity, globalId))
            {
                return entity;
            }
        }

        if (_table is null && ++_searches > SearchesBeforeTable)
        {
            _table = MakeTable();
        }

        int record = _table is null ? Search(globalId) : _table.GetValueOrDefault(globalId, -1);
        return record >= 0 && !model.Removed.Contains(record) && IsNamed(model.Instance(record), globalId)
            ? model.Instance(record)
            : null;
    }

    private bool IsNamed(IfcEntityBase entity, string globalId) =>
        entity.Class.IsA(_root) && entity.GetAttribute(0) as string == globalId;

    // Searches for the string as the first value of a record.
    private int Search(string globalId)
    {
        StringBuilder text = new();
        StepStrings.Encode(globalId, text);
        byte[] wanted = Encoding.ASCII.GetBytes(text.ToString());
        ReadOnlySpan<byte> data = model.File.Data;
        for (int at = 0; ;)
        {
            int length = data[at..].IndexOf(wanted);
            if (length < 0)
            {
                return -1;
            }

            at += length;
            int record = RecordAt(at);
            if (record >= 0 && FirstText(record) == globalId)
            {
                return record;
            }

            at++;
        }
    }

    private int RecordAt(int offset)
    {
        int at = model.File.Index.Starts.BinarySearch(offset);
        int record = at >= 0 ? at : ~at - 1;
        return record >= 0 && offset < model.File.Index.Ends[record] && IsRoot(record) ? record : -1;
    }

    private bool IsRoot(int record)
    {
        short number = model.File.Index.Keywords[record];
        return number >= _root.Number && number <= _root.Last;
    }

    private string? FirstText(int record)
    {
        StepParser parser = new(model.Bytes(record), model.FirstAttribute(record));
        return parser.Value() as string;
    }

    private Dictionary<string, int> MakeTable()
    {
        Dictionary<string, int> table = new(StringComparer.Ordinal);
        for (int record = 0; record < model.File.Index.Count; record++)
        {
            if (IsRoot(record) && FirstText(record) is { } globalId)
            {
                table.TryAdd(globalId, record);
            }
        }

        return table;
    }
}
