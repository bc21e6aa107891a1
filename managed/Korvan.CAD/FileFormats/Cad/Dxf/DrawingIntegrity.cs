using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
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

    internal static void Prepare(CadDrawing drawing, int release)
    {
        MarkSpaces(drawing);
        MissingRecords.Add(drawing);
        AddApplications(drawing);
        RenameBlocks(drawing);
        if (release >= WithRecords)
        {
            AddBlockRecords(drawing);
            AddTableHeaders(drawing);
        }

        CadDictionary? layouts = null;
        if (release >= WithOwners)
        {
            RemoveLayouts(drawing);
            AddLayouts(drawing);
            layouts = AddLayoutDictionary(drawing);
        }

        try
        {
            CompleteSequences(drawing);
            HandleAllocator.Assign(drawing, release >= WithRecords);
        }
        catch (Exception) when (layouts is not null)
        {
            // The call is interrupted: nothing leads to the dictionary yet.
            drawing.Objects.Remove(layouts);
            throw;
        }

        if (release >= WithOwners)
        {
            LinkDictionary(drawing, layouts);
            LinkLayouts(drawing);
            SetOwners(drawing);
            LinkMultilineStyles(drawing);
            RemoveDanglingEntries(drawing);
        }
    }

    // Files lead to the style of a multiline, which programs and old text files may know by its name only.
    private static void LinkMultilineStyles(CadDrawing drawing)
    {
        HashSet<ulong> handles = [];
        Dictionary<string, string> named = new(StringComparer.OrdinalIgnoreCase);
        foreach (CadMLineStyleObject style in drawing.Objects.OfType<CadMLineStyleObject>())
        {
            handles.Add(style.Handle);
            named.TryAdd(style.StyleName, style.ObjectHandle);
        }

        foreach (CadMultiLine line in DrawingWalk.Entities(drawing).OfType<CadMultiLine>())
        {
            if (!HandleText.TryParse(line.StyleHandle, out ulong handle) || !handles.Contains(handle))
            {
                line.StyleHandle = named.GetValueOrDefault(line.StyleName, line.StyleHandle);
            }
        }
    }

    // Programs refuse dictionaries whose entries are not there.
    private static void RemoveDanglingEntries(CadDrawing drawing)
    {
        HashSet<ulong> present = DrawingWalk.Handles(drawing);
        foreach (CadObjectBase item in drawing.Objects)
        {
            (item as CadDictionaryBase)?.RemoveDangling(present);
        }
    }

    // An entity that was put in the place of another may stand in its own as well.
    internal static void VerifyPlaces(CadDrawing drawing)
    {
        if (DrawingWalk.Entities(drawing).FirstOrDefault(static entity => entity.Places > 1) is { } entity)
        {
            throw new ImageSaveException(
                $"{entity} stands {entity.Places} times in its block; put a clone() of it there instead.");
        }
    }

    private static void MarkSpaces(CadDrawing drawing)
    {
        drawing.ModelSpace.Entities.ForEach(static entity => entity.SpaceMode = CadEntitySpaceMode.ModelSpace);
        drawing.PaperSpace.Entities.ForEach(static entity => entity.SpaceMode = CadEntitySpaceMode.PaperSpace);
    }

    // Programs refuse extended data of an application that the table does not know.
    private static void AddApplications(CadDrawing drawing)
    {
        HashSet<string> names = new(StringComparer.OrdinalIgnoreCase);
        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            item.XdataOrNull?.XdataEntities.ForEach(data => names.Add(data.RegisteredApplicationName));
        }

        foreach (string name in names.Where(name => !drawing.AppIdTables.Contains(name)))
        {
            drawing.AppIdTables.Add(new CadAppIdTableObject { Name = name });
        }
    }

    // The name of a block stands in three places, of which one is its property.
    private static void RenameBlocks(CadDrawing drawing)
    {
        HashSet<string> blocks = NamesOf(drawing.BlockEntities.Items.Select(static block => block.Name));
        HashSet<string> records = NamesOf(drawing.BlockRecords.Items.Select(static record => record.Name));
        ILookup<ulong, CadBlockTableObject> byHandle =
            drawing.BlockRecords.Items.ToLookup(static record => record.Handle);
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            bool same = string.Equals(block.NameAgain, block.Name, StringComparison.OrdinalIgnoreCase);
            block.NameAgain = same || block.NameAgain.Length == 0 ? block.NameAgain : block.Name;
            if (block.Owner != 0 && !records.Contains(block.Name)
                && byHandle[block.Owner].FirstOrDefault() is { } record && !blocks.Contains(record.Name))
            {
                record.Name = block.Name;
                records.Add(block.Name);
            }
        }
    }

    internal static void AddBlockRecords(CadDrawing drawing)
    {
        HashSet<string> blocks = NamesOf(drawing.BlockEntities.Items.Select(static block => block.Name));
        drawing.BlockRecords.Items.RemoveAll(record => !blocks.Contains(record.Name));
        HashSet<string> records = NamesOf(drawing.BlockRecords.Items.Select(static record => record.Name));
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (records.Add(block.Name))
            {
                drawing.BlockRecords.Add(new CadBlockTableObject { Name = block.Name });
            }
        }
    }

    // Lists look for a name that they do not have from end to end.
    internal static HashSet<string> NamesOf(IEnumerable<string> names) =>
        new(names, StringComparer.OrdinalIgnoreCase);

    private static void AddTableHeaders(CadDrawing drawing)
    {
        foreach (string name in TableRecords.Names)
        {
            drawing.TableHeaders.TryAdd(name, new CadTableHeader { Name = name });
        }
    }

    // Layouts that old drawings have without saying so, and those that were added.
    private static void AddLayouts(CadDrawing drawing)
    {
        HashSet<CadObjectBase> known = [.. drawing.Objects];
        foreach (CadLayout layout in drawing.Layouts)
        {
            if (known.Contains(layout))
            {
                continue;
            }

            drawing.Objects.Add(layout);
            if (DrawingLinks.BlockOf(drawing, layout) is { } block && drawing.Layouts.Count <= 2)
            {
                block.Layout = layout;
                continue;
            }

            AddSheet(drawing, layout);
        }
    }

    // What was taken from the list of layouts goes with its block and its entry in the dictionary.
    private static void RemoveLayouts(CadDrawing drawing)
    {
        foreach (CadLayout layout in drawing.Objects.OfType<CadLayout>().Except(drawing.Layouts.Items).ToList())
        {
            drawing.Objects.Remove(layout);
            CadDictionaryBase? dictionary = NamedDictionary(drawing, LayoutDictionary);
            dictionary?.RemoveHandle(layout.Handle);
            CadBlockEntity? block = DrawingLinks.BlockOf(drawing, layout);
            if (block is null || block == drawing.ModelSpace || block == drawing.PaperSpace)
            {
                continue;
            }

            drawing.BlockEntities.Remove(block);
            if (drawing.BlockRecords.Find(block.Name) is { } record)
            {
                drawing.BlockRecords.Remove(record);
            }
        }
    }

    // A layout that no dictionary names is deleted by programs that recover drawings.
    private static CadDictionary? AddLayoutDictionary(CadDrawing drawing)
    {
        if (NamedDictionary(drawing, LayoutDictionary) is not null)
        {
            return null;
        }

        CadDictionary layouts = new();
        if (!drawing.Objects.OfType<CadDictionaryBase>().Any())
        {
            // The first object of a file is the root of the dictionaries.
            drawing.Objects.Insert(0, new CadDictionary());
        }

        drawing.Objects.Add(layouts);
        return layouts;
    }

    private static void LinkDictionary(CadDrawing drawing, CadDictionary? layouts)
    {
        if (layouts is null || drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault() is not { } root)
        {
            return;
        }

        root.Set(LayoutDictionary, layouts.Handle);
        layouts.Owner = root.Handle;
        foreach (CadLayout layout in drawing.Layouts)
        {
            layouts.Set(layout.LayoutName, layout.Handle);
            layout.Owner = layouts.Handle;
        }
    }

    private static void AddSheet(CadDrawing drawing, CadLayout layout)
    {
        int number = 0;
        while (drawing.BlockEntities.Contains(BlockNames.PaperSpace + number))
        {
            number++;
        }

        string name = BlockNames.PaperSpace + number;
        drawing.BlockEntities.Add(new CadBlockEntity { Name = name, NameAgain = name, Layout = layout });
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = name });
    }

    private static void CompleteSequences(CadDrawing drawing)
    {
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
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

    private static void LinkLayouts(CadDrawing drawing)
    {
        CadDictionaryBase? names = NamedDictionary(drawing, LayoutDictionary);
        foreach (CadLayout layout in drawing.Layouts)
        {
            names?.Rename(layout.Handle, layout.LayoutName);
        }

        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (block.Layout is not { } layout || drawing.BlockRecords.Find(block.Name) is not { } record)
            {
                continue;
            }

            layout.BlockTableRecordHandle = record.ObjectHandle;
            record.LayoutHandle = layout.ObjectHandle;
            block.Layout = null;
            if (NamedDictionary(drawing, LayoutDictionary) is { } dictionary)
            {
                dictionary.Set(layout.LayoutName, layout.Handle);
                layout.Owner = dictionary.Handle;
            }
        }
    }

    private static CadDictionaryBase? NamedDictionary(CadDrawing drawing, string name)
    {
        CadDictionaryBase? root = drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault();
        return root is not null && root.TryGet(name, out ulong handle)
            ? drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault(item => item.Handle == handle)
            : null;
    }

    private static void SetOwners(CadDrawing drawing)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (drawing.BlockRecords.Find(block.Name) is not { } record)
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
            foreach (CadSymbolTableGroupCodes record in TableRecords.Of(drawing, table))
            {
                record.Owner = drawing.TableHeaders[table].Handle;
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
            case CadInsertObject { Seqend: { } end } insert:
                insert.Attributes.ForEach(attribute => attribute.Owner = entity.Handle);
                end.Owner = entity.Handle;
                break;
        }
    }
}
