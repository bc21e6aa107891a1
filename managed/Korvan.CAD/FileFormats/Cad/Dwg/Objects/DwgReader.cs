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
    private const string Section = "AcDb:AcDbObjects";
    private const string DataSection = "AcDb:AcDsPrototype_1b";
    private const int LastPlainRelease = 2000;
    private const int BitsPerStep = 8 * 512;
    private const int MaxOverlap = 4;

    private readonly RecordNames _names = new();
    private readonly ObjectSet _objects = new(file.Map.Handles);

    // How many bits records may have together: a damaged map may have each overlap many others.
    private long _budget = (long)MaxOverlap * file.Objects.Length * 8;

    /// <summary>Adds the objects of the file to the drawing.</summary>
    /// <exception cref="ImageLoadException">An object is damaged, and defects end the load.</exception>
    internal void Read()
    {
        RecordFormat format = new(file.Release, file.Encoding, _names);
        RecordReader reader = new(file.Objects, format, drawing.ClassEntities.Items);
        RecordHeader?[] headers = new RecordHeader?[file.Map.Count];
        for (int i = 0; i < headers.Length; i++)
        {
            headers[i] = ReadHeader(reader, i);
        }

        for (int i = 0; i < headers.Length; i++)
        {
            ReadControl(reader, headers[i], i);
        }

        CompleteNames();
        for (int i = 0; i < headers.Length; i++)
        {
            ReadRecord(reader, headers[i], i);
        }

        new DrawingAssembly(drawing, _objects, _names).Build();
        DrawingLinks.Complete(drawing);
        ReadSolids();
        ModelerSection.Attach(drawing);
        drawing.ContentRelease = drawing.Version;
    }

    private void ReadSolids()
    {
        if (!DataStore.Read(file.AcdsPrototype, drawing))
        {
            file.Source.Report(
                LoadDefectCode.InvalidSection, DataSection, -1, "the data of solids is not where its index says");
        }
    }

    // The names of records are read first, so that the others know them.
    private RecordHeader? ReadHeader(RecordReader reader, int index)
    {
        try
        {
            RecordHeader header = reader.ReadHeader(file.Map.Offsets[index]);
            CountWork(header);
            _budget -= header.End - header.Start;
            if (_budget < 0)
            {
                throw new DwgFault(header.Start, "it overlaps other objects, which have all bytes of the file");
            }

            VerifyChecksum(header, index);
            if (ObjectTypeTable.IsRecord(header.Type))
            {
                (_, string name) = reader.ReadName(header);
                _names.Add(file.Map.Handles[index], name);
            }

            return header;
        }
        catch (DwgFault fault)
        {
            Report(fault, index, "object");
            return null;
        }
    }

    // Many entries of an object map may lead to one record.
    private static void CountWork(in RecordHeader header) =>
        Budget.Step(1 + ((header.End - header.Start) / BitsPerStep));

    private void VerifyChecksum(in RecordHeader header, int index)
    {
        if (!IsWhole(header, index))
        {
            file.Source.Report(
                LoadDefectCode.WrongChecksum,
                PlaceOf(index, "object"),
                file.Release <= LastPlainRelease ? file.Map.Offsets[index] : -1,
                "the record has another checksum than it states");
        }
    }

    private bool IsWhole(in RecordHeader header, int index) =>
        file.HasRightChecksum(file.Map.Offsets[index], header.End >> 3);

    private void ReadControl(RecordReader reader, RecordHeader? found, int index)
    {
        if (found is not { } header || ObjectTypeTable.ControlledTable(header.Type) is not { } table)
        {
            return;
        }

        try
        {
            CadTableHeader target = new() { Name = table };
            _objects.Tables[table] = reader.ReadControl(header, target);
            drawing.TableHeaders[table] = target;
        }
        catch (DwgFault fault)
        {
            Report(fault, index, table);
        }
    }

    // Blocks without a name of their own have a name of the kind, to which their place in the table is added.
    private void CompleteNames()
    {
        if (_objects.Tables.TryGetValue("BLOCK_RECORD", out SymbolTableHandles? blocks))
        {
            for (int i = 0; i < blocks.Records.Count; i++)
            {
                ulong handle = blocks.Records[i];
                if (_names.Find(handle) is ['*', .., var last] name && !char.IsAsciiDigit(last))
                {
                    _names.Add(handle, $"{name}{i}");
                }
            }
        }

        if (_objects.Tables.TryGetValue("LTYPE", out SymbolTableHandles? lineTypes))
        {
            _names.LineTypes = lineTypes.Records;
        }
    }

    private void ReadRecord(RecordReader reader, RecordHeader? found, int index)
    {
        if (found is not { } header || ObjectTypeTable.ControlledTable(header.Type) is not null)
        {
            return;
        }

        CountWork(header);
        try
        {
            RecordContent content = reader.Read(header);
            VerifyHandle(content, header, index);
            _objects.Set(index, content);
        }
        catch (DwgFault fault) when (IsWhole(header, index) && !ObjectTypeTable.IsRecord(header.Type))
        {
            Keep(reader, header, index, fault);
        }
        catch (DwgFault fault)
        {
            Report(fault, index, reader.NameOf(header.Type));
        }
    }

    // Others refer to the object by the handle that the map states.
    private void VerifyHandle(RecordContent content, in RecordHeader header, int index)
    {
        if (content.Target is { } target && target.Handle != file.Map.Handles[index])
        {
            string cause = $"the record states the handle {HandleText.Format(target.Handle)}";
            Report(new DwgFault(header.Fields, cause), index, target.DxfName);
            target.Handle = file.Map.Handles[index];
        }
    }

    // A record that is whole and cannot be read has fields that its class does not know: it is kept like one without a
    // class.
    private void Keep(RecordReader reader, in RecordHeader header, int index, DwgFault fault)
    {
        try
        {
            _objects.Set(index, reader.ReadKept(header));
            file.Source.Options.Report(new LoadDefect(
                LoadDefectCode.UnknownFields,
                new LoadPlace(file.Source.Name, 0, PlaceOf(index, reader.NameOf(header.Type)), -1),
                $"bit {fault.Position}: {fault.Message}; the object is kept as it is"));
        }
        catch (DwgFault)
        {
            Report(fault, index, reader.NameOf(header.Type));
        }
    }

    private void Report(DwgFault fault, int index, string type) => file.Source.Report(
        LoadDefectCode.DamagedObject,
        PlaceOf(index, type),
        file.Release <= LastPlainRelease ? fault.Position >> 3 : -1,
        $"bit {fault.Position}: {fault.Message}");

    private string PlaceOf(int index, string type) => $"{Section}, {type} {HandleText.Format(file.Map.Handles[index])}";
}
