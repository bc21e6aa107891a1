using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Reads drawing databases of the releases before 13: a file header with variables, tables of fixed records,
/// and entity records one after another.</summary>
internal sealed class EarlyDwgReader
{
    private readonly DwgSource _source;
    private readonly LoadOptions _options;
    private readonly EarlyLayout _layout;
    private readonly EarlyNames _names = new();
    private readonly EarlyValues _values;
    private readonly EarlyEntityReader _entities;
    private readonly EarlyCollector _collector;
    private readonly EarlyProgress _progress;
    private readonly CadDrawing _drawing = new(DrawingSeed.Blank);

    private EarlyDwgReader(DwgSource source, EarlyRelease release)
    {
        _source = source;
        _options = source.Options;
        _layout = EarlyLayout.Read(source, release);
        _values = new EarlyValues(release, _names, source.Options);
        _entities = new EarlyEntityReader(_values);
        _collector = new EarlyCollector(_drawing);
        _progress = new EarlyProgress(source.Data.Length);
    }

    /// <summary>Reads a whole file.</summary>
    /// <param name="data">The bytes.</param>
    /// <param name="name">The name of the file in messages.</param>
    /// <param name="options">The load options; null for the default.</param>
    /// <exception cref="ImageLoadException">The file is damaged, or of a release that is not read.</exception>
    internal static CadDrawing Read(byte[] data, string name, LoadOptions? options)
    {
        DwgSource source = new(data, name, options ?? new LoadOptions());
        EarlyRelease release = EarlyReleases.Of(data);
        if (release == EarlyRelease.Unknown)
        {
            throw source.Fail(
                LoadDefectCode.UnknownSchema,
                "header",
                0,
                $"drawings of the release {EarlyReleases.CodeOf(data)} are not read; the first one that is read is "
                    + "AC1.40");
        }

        return new EarlyDwgReader(source, release).Read();
    }

    private CadDrawing Read()
    {
        if (_layout.CodePage > 0 && _options.SpecifiedEncoding == CodePages.Default)
        {
            _values.Encoding = _source.EncodingOf(_layout.CodePage);
        }

        ReadNames();
        _drawing.Header.AcadVersion = EarlyReleases.VersionOf(_layout.Release);
        Try(ReadVariables);
        if (_layout.Release == EarlyRelease.R14)
        {
            Try(ReadOldestEntities);
        }
        else
        {
            ReadTables();
            Try(() => ReadEntities(_layout.Entities, _layout.Entities.Start));
        }

        DrawingLinks.Complete(_drawing);
        _drawing.ContentRelease = _drawing.Version;
        return _drawing;
    }

    private void Try(System.Action read)
    {
        try
        {
            read();
        }
        catch (ImageLoadException e) when (_options.IgnoreErrors)
        {
            _options.Report(e);
        }
    }

    private void ReadVariables()
    {
        EarlyBytes bytes = new(_source, "header") { Position = _layout.VariableStart, AllowsUnresolved = true };
        EarlyField[] single = new EarlyField[1];
        foreach (EarlyField field in _layout.Variables)
        {
            if (field.Coding == EarlyCoding.LayerColors)
            {
                ReadLayerColors(bytes, field.Width);
                continue;
            }

            single[0] = field;
            EarlyFieldReader values = new(bytes);
            _values.Read(single, 0, bytes, values);
            if (field.Name.Length > 0 && field.Coding != EarlyCoding.Table && values.Count > 0)
            {
                Store(values, _drawing.Header.TagsOf("$" + field.Name));
            }
        }
    }

    // The name of a long menu file has a second field.
    private static void Store(EarlyFieldReader values, List<CadCodeValue> tags)
    {
        while (values.Next())
        {
            CadCodeValue value = values.ToCodeValue();
            if (tags.Find(tag => tag.Attribute == value.Attribute) is { } before)
            {
                before.Value += value.Value;
            }
            else
            {
                tags.Add(value);
            }
        }
    }

    private void ReadLayerColors(EarlyBytes bytes, int count)
    {
        const short unused = 255;
        for (int i = 0; i < count; i++)
        {
            short color = bytes.Int16();
            if (color != unused && color != 0)
            {
                _drawing.Layers.Add(new CadLayerTable { Name = EarlyNames.OfLayer(i), StoredColor = color });
            }
        }
    }

    private void ReadNames()
    {
        if (_layout.Release == EarlyRelease.R14)
        {
            _names.Layers.AddRange(Enumerable.Range(0, EarlyHeaderFields.LayerCount).Select(EarlyNames.OfLayer));
        }

        foreach (EarlyTableType type in EarlyTableFields.All)
        {
            if (_names.Of(type) is not { } names)
            {
                continue;
            }

            foreach (EarlyBytes record in RecordsOf(type))
            {
                record.Position++;
                string name = _values.Fixed(record, EarlyTableFields.NameWidth);
                names.Add(type == EarlyTableFields.Blocks ? EarlyNames.OfBlock(name, names.Count) : name);
            }
        }
    }

    private void ReadTables()
    {
        foreach (EarlyTableType type in EarlyTableFields.All)
        {
            int index = 0;
            foreach (EarlyBytes record in RecordsOf(type))
            {
                int current = index++;
                Try(() => ReadRecord(type, current, record));
            }
        }
    }

    private IEnumerable<EarlyBytes> RecordsOf(EarlyTableType type)
    {
        EarlyTable table = _layout.Tables.GetValueOrDefault(type.Name);
        for (int i = 0; i < table.Count; i++)
        {
            int start = table.Address + (i * table.Size);
            yield return new EarlyBytes(_source, type.Name) { Position = start, End = start + table.Size };
        }
    }

    private void ReadRecord(EarlyTableType type, int index, EarlyBytes bytes)
    {
        if (_layout.Release >= EarlyRelease.R11)
        {
            if (!bytes.HasChecksum(bytes.Position))
            {
                bytes.Report(LoadDefectCode.WrongChecksum, bytes.Position, "the checksum of a record is wrong");
            }

            bytes.End -= sizeof(ushort);
        }

        EarlyFieldReader fields = new(bytes);
        _values.Read(EarlyTableFields.Common, 0, bytes, fields);
        if (EarlyTableFields.IsErased(fields))
        {
            return;
        }

        if (type == EarlyTableFields.Blocks)
        {
            string name = _names.Blocks[index];
            _drawing.BlockRecords.Add(new CadBlockTableObject { Name = name });
            ReadBlock(name, (short)fields.Peek(EarlyTableFields.FlagsCode), bytes.UInt32());
            return;
        }

        CadSymbolTableGroupCodes record = type.Create();
        _values.Read(type.Fields, 0, bytes, fields, mayEnd: true);
        fields.GiveTo(record);
        TableRecords.Add(_drawing, record);
    }

    private void ReadBlock(string name, short flags, uint offset)
    {
        const uint mask = 0x3FFFFFFF;
        CadBlockEntity block = new() { Name = name, NameAgain = name, Flags = flags };
        _drawing.BlockEntities.Add(block);
        long start = _layout.Blocks.Start + (long)(offset & mask);
        if (start >= _layout.Blocks.End)
        {
            throw _source.Fail(
                LoadDefectCode.UnresolvedReference,
                "BLOCK",
                start,
                $"the block '{name}' begins beyond the end of the blocks");
        }

        _collector.Begin(block);
        EarlyRecords records = new(_source, _layout, _progress);
        records.Begin(_layout.Blocks, (int)start);
        try
        {
            BeginBlock(block, records);
            ReadEntities(records);
        }
        finally
        {
            _collector.End();
        }
    }

    private void BeginBlock(CadBlockEntity block, EarlyRecords records)
    {
        if (!records.Next() || _entities.Read(records, static _ => null) is not CadBlockEntity begin)
        {
            throw records.Bytes.Fail(
                LoadDefectCode.Misplaced, records.Bytes.Position, $"the block '{block.Name}' has no beginning");
        }

        (block.BasePoint, block.XRefPathName) = (begin.BasePoint, begin.XRefPathName);
        (block.StoredLayer, block.Handle) = (begin.StoredLayer, begin.Handle);
    }

    private void ReadEntities(EarlySection section, int start)
    {
        EarlyRecords records = new(_source, _layout, _progress);
        records.Begin(section, start);
        ReadEntities(records);
        _collector.End();
    }

    // A defect in a record costs this record; one in its length, those up to the next that can be found.
    private void ReadEntities(EarlyRecords records)
    {
        bool inBlock = !_collector.IsBlockDone;
        while (!(inBlock && _collector.IsBlockDone) && Next(records))
        {
            Budget.Check();
            if (records.Type == EarlyEntityFields.Block)
            {
                records.Unread();
                records.Bytes.Report(
                    LoadDefectCode.Misplaced, records.Bytes.Position, "a block begins within other entities");
                return;
            }

            Try(() => ReadEntity(records));
        }
    }

    private bool Next(EarlyRecords records)
    {
        try
        {
            return records.Next();
        }
        catch (ImageLoadException e) when (_options.IgnoreErrors)
        {
            _options.Report(e);
            return records.Resume();
        }
    }

    private void ReadEntity(EarlyRecords records)
    {
        const int vertex = 20;
        bool isVertex = records.Type == vertex;
        CadEntityBase? entity = _entities.Read(records, flags => isVertex ? _collector.CreateVertex(flags) : null);
        Collect(records.Type, entity);
    }

    private void ReadOldestEntities()
    {
        EarlyBytes bytes = new(_source, _layout.Entities.Name)
        {
            Position = _layout.Entities.Start,
            End = _layout.Entities.End,
        };
        while (bytes.Remaining > 0)
        {
            Budget.Check();
            int type = bytes.Int16();
            CadEntityBase? entity = _entities.ReadOldest(System.Math.Abs(type), bytes);
            if (type > 0)
            {
                Collect(type, entity);
            }
        }

        _collector.End();
    }

    private void Collect(int type, CadEntityBase? entity)
    {
        switch (type)
        {
            case EarlyEntityFields.Repeat:
                _collector.BeginRepeat();
                break;
            case EarlyEntityFields.EndRepeat when entity is CadInsertObject grid:
                _collector.EndRepeat(grid);
                break;
            case EarlyEntityFields.Load:
                break;
            default:
                if (entity is not null)
                {
                    _collector.Add(entity, _entities.IsFollowed);
                }

                break;
        }
    }
}
