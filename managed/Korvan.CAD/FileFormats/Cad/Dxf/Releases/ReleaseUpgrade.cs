using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Gives a drawing of release 14 or before what every drawing has from release 2000 on.</summary>
internal static class ReleaseUpgrade
{
    private const int Release = 2000;
    private const string ProxyName = "ACAD_PROXY_OBJECT";
    private const string MlineStyleName = "STANDARD";

    internal static void Apply(CadDrawing drawing, List<string> changes)
    {
        ReplaceVariables(drawing.Header, changes);
        RenameSpaces(drawing);
        AddRecords(drawing);
        DrawingIntegrity.AddBlockRecords(drawing);
        AddDictionaries(drawing);
        foreach (CadDimensionStyleTable style in drawing.DimensionStyles)
        {
            DimensionArrows.ToHandles(drawing, style);
        }

        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            ViewportXdata.Remove(entity);
        }

        RemoveUnplaced(drawing, changes);
        RemoveProxies(drawing, changes);
    }

    private static void ReplaceVariables(CadHeader header, List<string> changes)
    {
        List<string> removed = [];
        foreach (string name in header.VariableNames)
        {
            if (HeaderVariables.Until(name) < Release)
            {
                header.Remove(name);
                removed.Add(name);
            }
        }

        if (removed.Count > 0)
        {
            changes.Add($"header variables that the release does not have, left out: {string.Join(' ', removed)}");
        }

        HeaderVariables.SetArrowCode(header, HeaderVariables.ArrowCode);
    }

    private static void RenameSpaces(CadDrawing drawing)
    {
        Rename(drawing, drawing.ModelSpace, BlockNames.ModelSpace);
        Rename(drawing, drawing.PaperSpace, BlockNames.PaperSpace);
    }

    private static void Rename(CadDrawing drawing, CadBlockEntity block, string name)
    {
        if (drawing.BlockRecords.Find(block.Name) is { } record)
        {
            record.Name = name;
        }

        block.Name = block.NameAgain = name;
        block.StoredLayer = block.StoredLayer.Length > 0 ? block.StoredLayer : "0";
    }

    private static void AddRecords(CadDrawing drawing)
    {
        foreach (string name in new[] { "ByBlock", "ByLayer", "Continuous" })
        {
            Complete(drawing.LineTypes.Contains(name), () => drawing.LineTypes.Add(new() { Name = name }));
        }

        Complete(drawing.Layers.Contains("0"), () => drawing.Layers.Add(new() { Name = "0" }));
        Complete(drawing.Styles.Contains("Standard"), () => drawing.Styles.Add(new() { Name = "Standard" }));
        Complete(drawing.AppIdTables.Contains("ACAD"), () => drawing.AppIdTables.Add(new() { Name = "ACAD" }));
        Complete(
            drawing.DimensionStyles.Contains("Standard"),
            () => drawing.DimensionStyles.Add(new() { Name = "Standard" }));
        Complete(drawing.ViewPorts.Contains("*Active"), () => drawing.ViewPorts.Add(new() { Name = "*Active" }));
    }

    private static void Complete(bool isThere, Action add)
    {
        if (!isThere)
        {
            add();
        }
    }

    // Handles are given here, since dictionaries refer to their entries by them.
    private static void AddDictionaries(CadDrawing drawing)
    {
        CadDictionaryBase? root = drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault();
        if (root is null)
        {
            root = new CadDictionary();
            drawing.Objects.Insert(0, root);
        }

        HandleAllocator.Assign(drawing, true);
        AddDictionary(drawing, root, "ACAD_GROUP");
        CadDictionaryBase styles = AddDictionary(drawing, root, "ACAD_MLINESTYLE");
        if (!styles.TryGet(MlineStyleName, out _))
        {
            AddMlineStyle(drawing, styles);
        }
    }

    private static void AddMlineStyle(CadDrawing drawing, CadDictionaryBase styles)
    {
        CadObjectBase style = StandardDrawing.CreateMlineStyle();
        drawing.Objects.Add(style);
        HandleAllocator.Assign(drawing, true);
        styles.Set(MlineStyleName, style.Handle);
        style.Owner = styles.Handle;
    }

    private static CadDictionaryBase AddDictionary(CadDrawing drawing, CadDictionaryBase root, string name)
    {
        if (root.TryGet(name, out ulong handle)
            && drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault(one => one.Handle == handle) is { } known)
        {
            return known;
        }

        CadDictionary added = new() { Owner = root.Handle };
        drawing.Objects.Add(added);
        HandleAllocator.Assign(drawing, true);
        root.Set(name, added.Handle);
        return added;
    }

    // The data of a proxy is in the form of its release.
    private static void RemoveProxies(CadDrawing drawing, List<string> changes)
    {
        foreach (CadObjectBase item in drawing.Objects.FindAll(static item => item.DxfName == ProxyName))
        {
            drawing.Objects.Remove(item);
            changes.Add($"{ProxyName}: left out");
        }
    }

    // Without subclass markers nothing tells where in an object of the new release an unknown field belongs.
    private static void RemoveUnplaced(CadDrawing drawing, List<string> changes)
    {
        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            if (item is RawEntity or RawObject || item.KeptTags is not { } kept)
            {
                continue;
            }

            int count = kept.Tags.RemoveAll(static tag => tag.Subclass is null);
            if (count > 0)
            {
                changes.Add($"{item.DxfName}: fields that are not known, left out");
            }
        }
    }
}
