using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <content>Tables, blocks, entities and objects.</content>
internal sealed partial class DxfReader
{
    private void ReadTables()
    {
        while (NextObject() is { } name)
        {
            if (name == "TABLE")
            {
                ReadTable();
            }
            else if (name != "ENDTAB")
            {
                throw _tags.Fail(
                LoadDefectCode.Misplaced, $"'{name}' stands between tables; 0 TABLE was expected");
            }
        }
    }

    private void ReadTable()
    {
        CadTableHeader header = new();
        _objects.ReadBody(header);
        _drawing.TableHeaders[header.Name] = header;
        while (NextObject() is { } name && name != "ENDTAB")
        {
            CadSymbolTableGroupCodes? record = ObjectTypes.CreateTableRecord(name);
            if (record is null)
            {
                throw _tags.Fail(
                LoadDefectCode.Misplaced, $"'{name}' is no record of a table; 0 ENDTAB was expected");
            }

            if (TryRead(record))
            {
                TableRecords.Add(_drawing, record);
            }
        }
    }

    private void ReadBlocks()
    {
        CadBlockEntity? block = null;
        while (NextObject() is { } name)
        {
            switch (name)
            {
                case "BLOCK":
                    block = new CadBlockEntity();
                    _objects.ReadBody(block);
                    AddBlock(block);
                    break;
                case "ENDBLK":
                    CadEndBlock end = block?.End ?? new CadEndBlock();
                    _objects.ReadBody(end);
                    block = null;
                    break;
                default:
                    ReadEntity(name, (block ?? throw OutsideBlock(name)).Entities);
                    break;
            }
        }
    }

    private ImageLoadException OutsideBlock(string name)
    {
        return _tags.Fail(
                LoadDefectCode.Misplaced, $"the entity {name} stands outside of a block; 0 BLOCK was expected");
    }

    private void AddBlock(CadBlockEntity block)
    {
        if (BlockNames.IsModelSpace(block.Name) && !_drawing.ModelSpaceInFile)
        {
            TakeOver(_drawing.ModelSpace, block);
            _drawing.ModelSpace = block;
            _drawing.ModelSpaceInFile = true;
        }
        else if (BlockNames.IsActivePaperSpace(block.Name) && !_drawing.PaperSpaceInFile)
        {
            TakeOver(_drawing.PaperSpace, block);
            _drawing.PaperSpace = block;
            _drawing.PaperSpaceInFile = true;
        }

        _drawing.BlockEntities.Add(block);
    }

    private static void TakeOver(CadBlockEntity from, CadBlockEntity to)
    {
        List<CadEntityBase> entities = [.. from.Entities];
        from.Entities.Clear();
        to.Entities.AddRange(entities);
    }

    private void ReadEntities()
    {
        List<CadEntityBase> pending = [];
        while (NextObject() is { } name)
        {
            ReadEntity(name, pending);
            foreach (CadEntityBase entity in pending)
            {
                bool paper = entity.SpaceMode == CadEntitySpaceMode.PaperSpace;
                (paper ? _drawing.PaperSpace : _drawing.ModelSpace).Entities.Add(entity);
            }

            pending.Clear();
        }
    }

    private void ReadEntity(string name, IList<CadEntityBase> target)
    {
        CadEntityBase? entity = null;
        try
        {
            entity = _objects.ReadEntity(name);
        }
        catch (ImageLoadException e) when (_options.IgnoreErrors)
        {
            LeaveOut(e);
        }

        if (entity is not null)
        {
            target.Add(entity);
        }
    }

    private void ReadObjects()
    {
        while (NextObject() is { } name)
        {
            CadObjectBase item = ObjectTypes.CreateObject(name) ?? new RawObject(name);
            if (TryRead(item))
            {
                _drawing.Objects.Add(item);
            }
        }
    }

    private void ReadAcdsData()
    {
        CadAcdsData section = _drawing.AcdsData;
        section.IsInFile = true;
        while (_tags.Next() && _tags.Code != 0)
        {
            section.Header.Add(_tags.ToCodeValue());
        }

        _tags.Unread();
        while (NextObject() is { } name)
        {
            CadBaseAcds item = ObjectTypes.CreateAcds(name) ?? new RawAcds(name);
            if (TryRead(item))
            {
                section.Items.Items.Add(item);
            }
        }
    }

    private bool TryRead(CadBaseObject item)
    {
        try
        {
            _objects.ReadBody(item);
            return true;
        }
        catch (ImageLoadException e) when (_options.IgnoreErrors)
        {
            LeaveOut(e);
            return false;
        }
    }

    // The tags of a damaged object are passed over; what follows it is read as always.
    private void LeaveOut(ImageLoadException failure)
    {
        _options.Report(failure);
        while (_tags.Next() && _tags.Code != 0)
        {
        }

        _tags.Unread();
    }
}
