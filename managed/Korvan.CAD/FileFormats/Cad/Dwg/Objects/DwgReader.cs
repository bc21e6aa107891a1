using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads the objects of a drawing database and makes the drawing of them.</summary>
/// <param name="file">The sections of the file.</param>
/// <param name="drawing">The drawing, with its classes.</param>
internal sealed class DwgReader(DwgFile file, CadDrawing drawing)
{
    private const string DataSection = "AcDb:AcDsPrototype_1b";
    private const int MaxOverlap = 4;

    private readonly RecordFormat _format = new(file.Release, file.Encoding, new RecordNames());
    private readonly ObjectSet _objects = new(file.Map.Handles);
    private readonly RecordDefects _defects = new(file);
    private readonly RecordPieces _pieces = new(file.Map.Count, file.Objects.Length);

    /// <summary>Gets how pieces of work are run, whose order does not matter.</summary>
    internal Action<int, Action<int>> Run { get; init; } = ForkedProcess.RunPieces;

    /// <summary>Adds the objects of the file to the drawing.</summary>
    /// <exception cref="ImageLoadException">An object is damaged, and defects end the load.</exception>
    internal void Read()
    {
        RecordReader reader = CreateReader();
        RecordState[] states = new RecordState[file.Map.Count];
        (List<int> records, List<int> controls) = FindRecords(reader, states);
        foreach (int index in records)
        {
            states[index] = ReadName(reader, index);
        }

        foreach (int index in controls)
        {
            ReadControl(reader, index);
            states[index] = RecordState.IsRead;
        }

        CompleteNames();
        ReadObjects(states);
        _defects.Report();
        new DrawingAssembly(drawing, _objects, _format.Names).Build();
        DrawingLinks.Complete(drawing);
        ReadSolids();
        ModelerSection.Attach(drawing);
        drawing.ContentRelease = drawing.Version;
    }

    private RecordReader CreateReader() => new(file.Objects, _format, drawing.ClassEntities.Items);

    private void ReadSolids()
    {
        if (!DataStore.Read(file.AcdsPrototype, drawing))
        {
            file.Source.Report(
                LoadDefectCode.InvalidSection, DataSection, -1, "the data of solids is not where its index says");
        }
    }

    // The records of symbol tables and the headers of the tables are found first, so that all others know their names.
    private (List<int> Records, List<int> Controls) FindRecords(RecordReader reader, RecordState[] states)
    {
        // How many bits records may have together: a damaged map may have each overlap many others.
        long budget = (long)MaxOverlap * file.Objects.Length * 8;
        long[]? starts = null;
        List<int> records = [];
        List<int> controls = [];
        for (int i = 0; i < states.Length; i++)
        {
            try
            {
                RecordHeader header = reader.ReadHeader(file.Map.Offsets[i]);
                budget -= header.End - header.Start;
                if (budget < 0
                    && IsOverlapping(starts ??= SortedOffsets(), file.Map.Offsets[i], header.End >> 3))
                {
                    throw new DwgFault(header.Start, "it overlaps other objects, which have all bytes of the file");
                }

                states[i] = RecordState.IsFound;
                _pieces.Add(header.End - header.Start);
                if (ObjectTypeTable.IsRecord(header.Type))
                {
                    records.Add(i);
                }
                else if (ObjectTypeTable.ControlledTable(header.Type) is not null)
                {
                    controls.Add(i);
                }
            }
            catch (DwgFault fault)
            {
                _pieces.Add(0);
                _defects.Add(RecordDefects.Stage.Header, i, "object", fault);
            }
        }

        _pieces.End();
        return (records, controls);
    }

    private long[] SortedOffsets()
    {
        long[] offsets = [.. file.Map.Offsets];
        Array.Sort(offsets);
        return offsets;
    }

    // A record that is alone up to where the next one starts has its own bytes, whatever damaged ones state.
    private static bool IsOverlapping(long[] starts, long offset, long end)
    {
        int index = Array.BinarySearch(starts, offset);
        bool isShared = (index > 0 && starts[index - 1] == offset)
            || (index + 1 < starts.Length && starts[index + 1] == offset);
        return isShared || (index + 1 < starts.Length && starts[index + 1] < end);
    }

    private RecordState ReadName(RecordReader reader, int index)
    {
        try
        {
            (_, string name) = reader.ReadName(reader.ReadHeader(file.Map.Offsets[index]));
            _format.Names.Add(file.Map.Handles[index], name);
            return RecordState.IsFound;
        }
        catch (DwgFault fault)
        {
            _defects.Add(RecordDefects.Stage.Header, index, "object", fault);
            return RecordState.IsRead;
        }
    }

    private void ReadControl(RecordReader reader, int index)
    {
        RecordHeader header = reader.ReadHeader(file.Map.Offsets[index]);
        string table = ObjectTypeTable.ControlledTable(header.Type)!;
        try
        {
            CadTableHeader target = new() { Name = table };
            _objects.Tables[table] = reader.ReadControl(header, target);
            drawing.TableHeaders[table] = target;
        }
        catch (DwgFault fault)
        {
            _defects.Add(RecordDefects.Stage.Table, index, table, fault);
        }
    }

    // Blocks without a name of their own have a name of the kind, to which their place in the table is added.
    private void CompleteNames()
    {
        RecordNames names = _format.Names;
        if (_objects.Tables.TryGetValue("BLOCK_RECORD", out SymbolTableHandles? blocks))
        {
            for (int i = 0; i < blocks.Records.Count; i++)
            {
                ulong handle = blocks.Records[i];
                if (names.Find(handle) is ['*', .., var last] name && !char.IsAsciiDigit(last))
                {
                    names.Add(handle, $"{name}{i}");
                }
            }
        }

        if (_objects.Tables.TryGetValue("LTYPE", out SymbolTableHandles? lineTypes))
        {
            names.LineTypes = lineTypes.Records;
        }
    }

    // Objects know of each other by handles only, so that pieces are read in any order.
    private void ReadObjects(RecordState[] states)
    {
        RecordDefects[] defects = new RecordDefects[_pieces.Count];
        bool isGoingOn = file.Source.IsTolerant || _defects.IsEmpty;
        Run(_pieces.Count, piece =>
        {
            (int start, int end, long steps) = _pieces[piece];
            Budget.Step(steps);
            defects[piece] = new RecordDefects(file);
            new PieceReader(file, CreateReader(), _objects, defects[piece]).Read(states, start, end, isGoingOn);
        });
        Array.ForEach(defects, _defects.Add);
    }
}
