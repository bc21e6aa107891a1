using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Puts the objects of a file together: records into tables, entities into blocks, vertices and attributes
/// into their entities.</summary>
internal sealed class DrawingAssembly(CadDrawing drawing, ObjectSet objects, RecordNames names)
{
    // Blocks whose entities are linked to each other, where the links end before the last one.
    private readonly Dictionary<ulong, CadBlockEntity> _cut = [];
    private readonly HashSet<CadBlockEntity> _cutBlocks = [];

    internal void Build()
    {
        foreach (string table in TableRecords.Names)
        {
            AddRecords(table);
        }

        foreach (CadBlockTableObject record in drawing.BlockRecords.Items)
        {
            AddBlock(record);
        }

        AddUnlinked();
        AddObjects();
    }

    private void AddRecords(string table)
    {
        if (!objects.Tables.TryGetValue(table, out SymbolTableHandles? handles))
        {
            AddUnlisted(table);
            return;
        }

        AddRecord(handles.First);
        AddRecord(handles.Second);
        handles.Records.ForEach(AddRecord);
    }

    private void AddRecord(ulong handle)
    {
        if (objects.Take(handle) is >= 0 and var index && objects[index].Target is CadSymbolTableGroupCodes record)
        {
            record.StoreName(names.Find(handle) ?? record.Name);
            TableRecords.Add(drawing, record);
        }
    }

    // The header of the table is damaged: what there is counts.
    private void AddUnlisted(string table)
    {
        for (int i = 0; i < objects.Count; i++)
        {
            if (objects[i].Target is CadSymbolTableGroupCodes record && record.DxfName == table)
            {
                AddRecord(record.Handle);
            }
        }
    }

    private void AddBlock(CadBlockTableObject record)
    {
        // A damaged record may state another handle than the object map.
        int at = objects.Find(record.Handle);
        ChildHandles parts = (at < 0 ? null : objects[at].Parts) ?? new ChildHandles();
        bool isPaper = record.Name.StartsWith(BlockNames.PaperSpace, StringComparison.OrdinalIgnoreCase);
        CadBlockEntity block = Take<CadBlockEntity>(parts.Begin) ?? new CadBlockEntity();
        block.End = Take<CadEndBlock>(parts.End) ?? new CadEndBlock();
        PlaceIn(block, record.Handle, isPaper);
        PlaceIn(block.End, record.Handle, isPaper);

        block.Name = record.Name;
        block.NameAgain = record.Name;
        TakeDefinition(block, record.Definition);
        ulong last = 0;
        EntityList<CadEntityBase> entities = (EntityList<CadEntityBase>)block.Entities;
        entities.Items.EnsureCapacity(parts.Owned.Count);
        Children children = new(objects, parts);
        while (children.TakeNext(out int index))
        {
            AddTo(entities, index, record.Handle, isPaper);
            last = objects.HandleOf(index);
        }

        if (last != parts.Last)
        {
            _cut[record.Handle] = block;
            _cutBlocks.Add(block);
        }

        if (isPaper)
        {
            ViewportNumbers.Assign(block, isActive: BlockNames.IsActivePaperSpace(block.Name));
        }

        Add(block);
    }

    private void AddTo(EntityList<CadEntityBase> block, int index, ulong owner, bool isPaper)
    {
        ref readonly RecordContent content = ref objects[index];
        if (content.Target is CadEntityBase entity)
        {
            block.Append(entity);
            PlaceIn(entity, owner, isPaper);
            TakeColor(entity, content.Place.Color);
            Complete(entity, content.Parts);
            TakeBlockRecord(entity);
            TakeStyle(entity);
        }
    }

    // Where the record of a block or a link is damaged, entities themselves state where they belong.
    private void AddUnlinked()
    {
        for (int i = 0; i < objects.Count; i++)
        {
            if (objects.IsTaken(i))
            {
                continue;
            }

            ref readonly RecordContent content = ref objects[i];
            if (content.Target is CadEntityBase
                and not (CadVertexBase or CadAttrib or CadSeqend or CadBlockEntity or CadEndBlock)
                && UnlinkedBlockOf(content.Place) is { } block)
            {
                objects.Take(objects.HandleOf(i));
                EntityList<CadEntityBase> entities = (EntityList<CadEntityBase>)block.Entities;
                AddTo(entities, i, content.Place.Owner, ReferenceEquals(block, drawing.PaperSpace));
            }
        }
    }

    private CadBlockEntity? UnlinkedBlockOf(in ObjectPlace place) => place.Mode switch
    {
        ObjectFrame.InModelSpace => UnlinkedOrNull(drawing.ModelSpace, drawing.ModelSpaceInFile),
        ObjectFrame.InPaperSpace => UnlinkedOrNull(drawing.PaperSpace, drawing.PaperSpaceInFile),
        _ => _cut.GetValueOrDefault(place.Owner),
    };

    private CadBlockEntity? UnlinkedOrNull(CadBlockEntity block, bool isInFile) =>
        !isInFile || _cutBlocks.Contains(block) ? block : null;

    private static void TakeDefinition(CadBlockEntity block, BlockDefinition? definition)
    {
        if (definition is null)
        {
            return;
        }

        block.Flags = (short)definition.Flags;
        block.BasePoint = definition.BasePoint;
        block.XRefPathName = definition.Path;
        block.Description = definition.Description;
    }

    private void Add(CadBlockEntity block)
    {
        if (BlockNames.IsModelSpace(block.Name) && !drawing.ModelSpaceInFile)
        {
            drawing.ModelSpace = block;
            drawing.ModelSpaceInFile = true;
        }
        else if (BlockNames.IsActivePaperSpace(block.Name) && !drawing.PaperSpaceInFile)
        {
            drawing.PaperSpace = block;
            drawing.PaperSpaceInFile = true;
        }

        drawing.BlockEntities.Add(block);
    }

    private static void PlaceIn(CadEntityBase entity, ulong owner, bool isPaper)
    {
        entity.Owner = owner;
        if (isPaper)
        {
            entity.SpaceMode = CadEntitySpaceMode.PaperSpace;
        }
    }

    // A colour of a book is an object of its own.
    private void TakeColor(CadEntityBase entity, ulong handle)
    {
        if (handle != 0 && objects.Get<CadDbColor>(handle) is { } color)
        {
            entity.ColorValue = color.ColorValue;
            entity.ColorName = color.ColorName;
        }
    }

    // Text files state the record of the block with the graphics as well.
    private void TakeBlockRecord(CadEntityBase entity)
    {
        if (entity is CadTableEntity table && drawing.BlockRecords.Find(table.Name) is { } block)
        {
            table.BlockRecordHandle = HandleText.Format(block.Handle);
        }
    }

    // Text files state the name of the style as well.
    private void TakeStyle(CadEntityBase entity)
    {
        if (entity is CadMultiLine line && HandleText.TryParse(line.StyleHandle, out ulong handle)
            && objects.Get<CadMLineStyleObject>(handle) is { } style)
        {
            line.StyleName = style.StyleName;
        }
    }

    private void Complete(CadEntityBase entity, ChildHandles? parts)
    {
        if (parts is null)
        {
            return;
        }

        switch (entity)
        {
            case CadPolylineBase polyline:
                AddParts(polyline.Vertices, parts, entity);
                polyline.Seqend = TakeEnd(parts, entity);
                break;
            case CadInsertObject insert:
                AddParts(insert.Attributes, parts, entity);
                insert.Seqend = TakeEnd(parts, entity);
                break;
        }
    }

    private void AddParts<T>(IList<T> target, ChildHandles parts, CadEntityBase owner)
        where T : CadEntityBase
    {
        Children children = new(objects, parts);
        while (children.TakeNext(out int index))
        {
            if (objects[index].Target is T part)
            {
                target.Add(part);
                PlaceIn(part, owner.Handle, owner.SpaceMode == CadEntitySpaceMode.PaperSpace);
            }
        }
    }

    private CadSeqend? TakeEnd(ChildHandles parts, CadEntityBase owner)
    {
        int index = objects.Take(parts.End);
        if (index < 0 || objects[index].Target is not CadSeqend end)
        {
            return null;
        }

        PlaceIn(end, owner.Handle, owner.SpaceMode == CadEntitySpaceMode.PaperSpace);
        return end;
    }

    private T? Take<T>(ulong handle)
        where T : CadBaseObject => objects.Take(handle) is >= 0 and var index ? objects[index].Target as T : null;

    private void AddObjects()
    {
        for (int i = 0; i < objects.Count; i++)
        {
            if (objects[i].Target is CadObjectBase item && !ObjectTypeTable.IsOfFilesOnly(item.DxfName))
            {
                drawing.Objects.Add(item);
                if (item is CadRasterImageDefReactor { AssociatedImageHandle.Length: 0 } reactor)
                {
                    reactor.AssociatedImageHandle = HandleText.Format(reactor.Owner);
                }
            }
        }
    }

    /// <summary>Takes the parts of an object one after another.</summary>
    private struct Children(ObjectSet objects, ChildHandles parts)
    {
        private int _owned;
        private ulong _link = parts.First;

        internal bool TakeNext(out int index)
        {
            while (_owned < parts.Owned.Count)
            {
                index = objects.Take(parts.Owned[_owned++]);
                if (index >= 0)
                {
                    return true;
                }
            }

            // Each can be taken once, so that links in a circle end.
            index = objects.Take(_link);
            if (index < 0)
            {
                return false;
            }

            ref readonly RecordContent content = ref objects[index];
            _link = _link == parts.Last ? 0 : content.Place.IsBetweenNeighbours ? _link + 1 : content.Place.Next;
            return true;
        }
    }
}
