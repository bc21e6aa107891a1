using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Completes a drawing before it is saved: records, handles and owners of what was added.</summary>
internal static class DrawingIntegrity
{
    private const string LayoutDictionary = "ACAD_LAYOUT";
    private const int WithRecords = 1994;
    private const int WithOwners = 2000;

    internal static void Prepare(CadImage image, int release)
    {
        VerifyPlaces(image);
        MarkSpaces(image);
        AddLayers(image);
        AddApplications(image);
        RenameBlocks(image);
        if (release >= WithRecords)
        {
            AddBlockRecords(image);
            AddTableHeads(image);
        }

        if (release >= WithOwners)
        {
            RemoveLayouts(image);
            AddLayouts(image);
        }

        CompleteSequences(image);
        HandleAllocator.Assign(image, release >= WithRecords);
        if (release >= WithOwners)
        {
            LinkLayouts(image);
            SetOwners(image);
        }
    }

    // An entity that was put in the place of another may stand in its own as well.
    private static void VerifyPlaces(CadImage image)
    {
        if (DrawingWalk.Entities(image).FirstOrDefault(static entity => entity.Places > 1) is { } entity)
        {
            throw new ImageSaveException(
                $"{entity} stands {entity.Places} times in its block; put a clone() of it there instead.");
        }
    }

    private static void MarkSpaces(CadImage image)
    {
        image.ModelSpace.Entities.ForEach(static entity => entity.SpaceMode = CadEntitySpaceMode.ModelSpace);
        image.PaperSpace.Entities.ForEach(static entity => entity.SpaceMode = CadEntitySpaceMode.PaperSpace);
    }

    // A layer that entities name has to stand in the table.
    private static void AddLayers(CadImage image)
    {
        HashSet<string> seen = [];
        foreach (CadEntityBase entity in DrawingWalk.Entities(image))
        {
            if (seen.Add(entity.LayerName) && entity.LayerName.Length > 0 && !image.Layers.Contains(entity.LayerName))
            {
                image.Layers.Add(CadLayerTable.Stored(entity.LayerName));
            }
        }
    }

    // Programs refuse extended data of an application that the table does not know.
    private static void AddApplications(CadImage image)
    {
        HashSet<string> names = new(StringComparer.OrdinalIgnoreCase);
        foreach (CadBaseObject item in DrawingWalk.All(image))
        {
            item.XdataOrNull?.XdataEntities.ForEach(data => names.Add(data.RegisteredApplicationName));
        }

        foreach (string name in names.Where(name => !image.AppIdTables.Contains(name)))
        {
            image.AppIdTables.Add(new CadAppIdTableObject { Name = name });
        }
    }

    // The name of a block stands in three places, of which one is its property.
    private static void RenameBlocks(CadImage image)
    {
        foreach (CadBlockEntity block in image.BlockEntities)
        {
            bool same = string.Equals(block.NameAgain, block.Name, StringComparison.OrdinalIgnoreCase);
            block.NameAgain = same || block.NameAgain.Length == 0 ? block.NameAgain : block.Name;
            if (block.Owner == 0 || image.BlockRecords.Contains(block.Name))
            {
                continue;
            }

            if (image.BlockRecords.Items.Find(record => record.Handle == block.Owner) is { } record
                && !image.BlockEntities.Contains(record.Name))
            {
                record.Name = block.Name;
            }
        }
    }

    private static void AddBlockRecords(CadImage image)
    {
        image.BlockRecords.Items.RemoveAll(record => !image.BlockEntities.Contains(record.Name));
        foreach (CadBlockEntity block in image.BlockEntities)
        {
            if (!image.BlockRecords.Contains(block.Name))
            {
                image.BlockRecords.Add(new CadBlockTableObject { Name = block.Name });
            }
        }
    }

    private static void AddTableHeads(CadImage image)
    {
        foreach (string name in TableRecords.Names)
        {
            image.TableHeads.TryAdd(name, new CadTableHead { Name = name });
        }
    }

    // Layouts that old drawings have without saying so, and those that were added.
    private static void AddLayouts(CadImage image)
    {
        HashSet<CadObjectBase> known = [.. image.Objects];
        foreach (CadLayout layout in image.Layouts)
        {
            if (known.Contains(layout))
            {
                continue;
            }

            image.Objects.Add(layout);
            if (DrawingLinks.BlockOf(image, layout) is { } block && image.Layouts.Count <= 2)
            {
                block.Layout = layout;
                continue;
            }

            AddSheet(image, layout);
        }
    }

    // What was taken from the list of layouts goes with its block and its entry in the dictionary.
    private static void RemoveLayouts(CadImage image)
    {
        foreach (CadLayout layout in image.Objects.OfType<CadLayout>().Except(image.Layouts.Items).ToList())
        {
            image.Objects.Remove(layout);
            CadDictionaryBase? dictionary = NamedDictionary(image, LayoutDictionary);
            dictionary?.RemoveHandle(layout.Handle);
            CadBlockEntity? block = DrawingLinks.BlockOf(image, layout);
            if (block is null || block == image.ModelSpace || block == image.PaperSpace)
            {
                continue;
            }

            image.BlockEntities.Remove(block);
            if (image.BlockRecords.Find(block.Name) is { } record)
            {
                image.BlockRecords.Remove(record);
            }
        }
    }

    private static void AddSheet(CadImage image, CadLayout layout)
    {
        int number = 0;
        while (image.BlockEntities.Contains(BlockNames.PaperSpace + number))
        {
            number++;
        }

        string name = BlockNames.PaperSpace + number;
        image.BlockEntities.Add(new CadBlockEntity { Name = name, NameAgain = name, Layout = layout });
        image.BlockRecords.Add(new CadBlockTableObject { Name = name });
    }

    private static void CompleteSequences(CadImage image)
    {
        foreach (CadEntityBase entity in DrawingWalk.Entities(image))
        {
            switch (entity)
            {
                case CadPolylineBase polyline:
                    polyline.Seqend ??= new CadSeqend { LayerName = entity.LayerName };
                    break;
                case CadInsertObject { Attributes.Count: > 0 } insert:
                    insert.Seqend ??= new CadSeqend { LayerName = entity.LayerName };
                    break;
            }
        }
    }

    private static void LinkLayouts(CadImage image)
    {
        CadDictionaryBase? names = NamedDictionary(image, LayoutDictionary);
        foreach (CadLayout layout in image.Layouts)
        {
            names?.Rename(layout.Handle, layout.LayoutName);
        }

        foreach (CadBlockEntity block in image.BlockEntities)
        {
            if (block.Layout is not { } layout || image.BlockRecords.Find(block.Name) is not { } record)
            {
                continue;
            }

            layout.BlockTableRecordHandle = record.ObjectHandle;
            record.LayoutHandle = layout.ObjectHandle;
            block.Layout = null;
            if (NamedDictionary(image, LayoutDictionary) is { } dictionary)
            {
                dictionary.Set(layout.LayoutName, layout.Handle);
                layout.Owner = dictionary.Handle;
            }
        }
    }

    private static CadDictionaryBase? NamedDictionary(CadImage image, string name)
    {
        CadDictionaryBase? root = image.Objects.OfType<CadDictionaryBase>().FirstOrDefault();
        return root is not null && root.TryGet(name, out ulong handle)
            ? image.Objects.OfType<CadDictionaryBase>().FirstOrDefault(item => item.Handle == handle)
            : null;
    }

    private static void SetOwners(CadImage image)
    {
        foreach (CadBlockEntity block in image.BlockEntities)
        {
            if (image.BlockRecords.Find(block.Name) is not { } record)
            {
                continue;
            }

            block.Owner = record.Handle;
            block.End.Owner = record.Handle;
            foreach (CadEntityBase entity in block.Entities)
            {
                entity.Owner = record.Handle;
                SetOwnersOfParts(entity);
            }
        }

        foreach (string table in TableRecords.Names)
        {
            foreach (CadSymbolTableGroupCodes record in TableRecords.Of(image, table))
            {
                record.Owner = image.TableHeads[table].Handle;
            }
        }
    }

    private static void SetOwnersOfParts(CadEntityBase entity)
    {
        switch (entity)
        {
            case CadPolylineBase polyline:
                polyline.Vertices.ForEach(vertex => vertex.Owner = entity.Handle);
                polyline.Seqend!.Owner = entity.Handle;
                break;
            case CadInsertObject { Attributes.Count: > 0 } insert:
                insert.Attributes.ForEach(attribute => attribute.Owner = entity.Handle);
                insert.Seqend!.Owner = entity.Handle;
                break;
        }
    }
}
