using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Copies a whole drawing with its handles and owners, for conversions that must not change it.</summary>
internal static class DrawingCopy
{
    internal static CadDrawing Of(CadDrawing drawing)
    {
        CadDrawing copy = new(DrawingSeed.Blank)
        {
            ThumbnailImage = drawing.ThumbnailImage,
            Properties = drawing.Properties,
            ModelSpaceInFile = drawing.ModelSpaceInFile,
            PaperSpaceInFile = drawing.PaperSpaceInFile,
            Folder = drawing.Folder,
            DefaultUnitType = drawing.DefaultUnitType,
            IsBinary = drawing.IsBinary,
            ContentRelease = drawing.ContentRelease,
        };
        foreach (string name in drawing.Header.VariableNames)
        {
            EntityCopy.CopyTags(drawing.Header.TagsOf(name), copy.Header.TagsOf(name));
        }

        foreach (CadClassEntity item in drawing.ClassEntities)
        {
            copy.ClassEntities.Add(Class(item));
        }

        CopyTables(drawing, copy);
        Dictionary<CadLayout, CadLayout> layouts = CopyObjects(drawing, copy);
        CopyBlocks(drawing, copy, layouts);
        drawing.RawSections.ForEach(section => copy.RawSections.Add(new RawSection(section.Name)
        {
            Content = section.Content.Copy(),
        }));
        return copy;
    }

    private static CadClassEntity Class(CadClassEntity item)
    {
        MemoryExchange fields = new(item.Key);
        item.Exchange(fields);
        CadClassEntity copy = new();
        fields.Rewind();
        copy.Exchange(fields);
        return copy;
    }

    private static void CopyTables(CadDrawing drawing, CadDrawing copy)
    {
        foreach ((string name, CadTableHeader header) in drawing.TableHeaders)
        {
            copy.TableHeaders.Add(name, Copy(header, new CadTableHeader { Name = header.Name }));
        }

        foreach (string table in TableRecords.Names)
        {
            foreach (CadSymbolTableGroupCodes record in TableRecords.Of(drawing, table))
            {
                TableRecords.Add(copy, Copy(record));
            }
        }
    }

    private static Dictionary<CadLayout, CadLayout> CopyObjects(CadDrawing drawing, CadDrawing copy)
    {
        Dictionary<CadLayout, CadLayout> layouts = [];
        foreach (CadObjectBase item in drawing.Objects)
        {
            CadObjectBase added = item is RawObject ? Copy(item, new RawObject(item.DxfName)) : Copy(item);
            copy.Objects.Add(added);
            if (item is CadLayout layout)
            {
                layouts.TryAdd(layout, (CadLayout)added);
            }

            if (added is CadDictionaryBase dictionary)
            {
                dictionary.HandleCode = ((CadDictionaryBase)item).HandleCode;
            }
        }

        foreach (CadLayout layout in drawing.Layouts)
        {
            if (!layouts.TryGetValue(layout, out CadLayout? added))
            {
                layouts.Add(layout, added = Copy(layout));
            }

            copy.Layouts.Add(added);
        }

        return layouts;
    }

    private static void CopyBlocks(CadDrawing drawing, CadDrawing copy, Dictionary<CadLayout, CadLayout> layouts)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            CadBlockEntity added = Block(block, layouts);
            copy.BlockEntities.Add(added);
            copy.ModelSpace = block == drawing.ModelSpace ? added : copy.ModelSpace;
            copy.PaperSpace = block == drawing.PaperSpace ? added : copy.PaperSpace;
        }
    }

    private static CadBlockEntity Block(CadBlockEntity block, Dictionary<CadLayout, CadLayout> layouts)
    {
        CadBlockEntity copy = Copy(block);
        copy.End = Copy(block.End);
        copy.Layout = block.Layout is { } layout ? layouts.GetValueOrDefault(layout) : null;
        foreach (CadEntityBase entity in block.Entities)
        {
            copy.Entities.Add(Entity(entity));
        }

        return copy;
    }

    private static CadEntityBase Entity(CadEntityBase entity)
    {
        CadEntityBase copy = entity is RawEntity ? Copy(entity, new RawEntity(entity.DxfName)) : Copy(entity);
        switch (copy)
        {
            case CadPolylineBase polyline:
                CadPolylineBase source = (CadPolylineBase)entity;
                source.Vertices.ForEach(vertex => polyline.Vertices.Add((CadVertexBase)Copy((CadEntityBase)vertex)));
                polyline.Seqend = source.Seqend is { } end ? Copy(end) : null;
                break;
            case CadInsertObject insert:
                CadInsertObject from = (CadInsertObject)entity;
                from.Attributes.ForEach(attribute => insert.Attributes.Add((CadAttrib)Copy((CadEntityBase)attribute)));
                insert.Seqend = from.Seqend is { } last ? Copy(last) : null;
                break;
        }

        return copy;
    }

    private static T Copy<T>(T item)
        where T : CadBaseObject => Copy(item, (T)Activator.CreateInstance(item.GetType(), true)!);

    private static T Copy<T>(T item, T copy)
        where T : CadBaseObject
    {
        MemoryExchange fields = new(item.Handle == 0 ? item.DxfName : $"{item.DxfName} {item.ObjectHandle}");
        item.Exchange(fields);
        fields.Rewind();
        copy.Exchange(fields);
        EntityCopy.CopyAttached(item, copy, []);
        copy.Handle = item.Handle;
        if (copy is CadOwnedObjectBase owned)
        {
            owned.Owner = ((CadOwnedObjectBase)(CadBaseObject)item).Owner;
        }

        return copy;
    }
}
