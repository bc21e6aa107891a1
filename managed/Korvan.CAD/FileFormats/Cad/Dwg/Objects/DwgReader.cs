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
        RecordHeader[] headers = new RecordHeader[file.Map.Count];
        (List<int> records, List<int> controls) = ReadHeaders(reader, headers);
        foreach (int index in records)
        {
            ReadName(reader, ref headers[index], index);
        }

        foreach (int index in controls)
        {
            ReadControl(reader, ref headers[index], index);
        }

        CompleteNames();
        ReadObjects(headers);
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
    private (List<int> Records, List<int> Controls) ReadHeaders(RecordReader reader, RecordHeader[] headers)
    {
        // How many bits records may have together: a damaged map may have each overlap many others.
        long budget = (long)MaxOverlap * file.Objects.Length * 8;
        List<int> records = [];
        List<int> controls = [];
        for (int i = 0; i < headers.Length; i++)
        {
            try
            {
                RecordHeader header = reader.ReadHeader(file.Map.Offsets[i]);
                budget -= header.End - header.Start;
                if (budget < 0)
                {
                    throw new DwgFault(header.Start, "it overlaps other objects, which have all bytes of the file");
                }

                headers[i] = header;
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

    private void ReadName(RecordReader reader, ref RecordHeader header, int index)
    {
        try
        {
            (_, string name) = reader.ReadName(header);
            _format.Names.Add(file.Map.Handles[index], name);
        }
        catch (DwgFault fault)
        {
            _defects.Add(RecordDefects.Stage.Header, index, "object", fault);
            header = header.WithoutContent();
        }
    }

    private void ReadControl(RecordReader reader, ref RecordHeader header, int index)
    {
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

        header = header.WithoutContent();
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
    private void ReadObjects(RecordHeader[] headers)
    {
        RecordDefects[] defects = new RecordDefects[_pieces.Count];
        bool isGoingOn = file.Source.IsTolerant || _defects.IsEmpty;
        Run(_pieces.Count, piece =>
        {
            (int start, int end, long steps) = _pieces[piece];
            Budget.Step(steps);
            defects[piece] = new RecordDefects(file);
            new PieceReader(file, CreateReader(), _objects, defects[piece]).Read(headers, start, end, isGoingOn);
        });
        Array.ForEach(defects, _defects.Add);
    }
}
