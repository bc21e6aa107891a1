using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Makes a drawing of another release out of one: a copy, whose content that release can hold.</summary>
internal static class ReleaseConversion
{
    private const int WithRecords = 1994;
    private const int WithLayouts = 2000;
    private const int WithTrueColors = 2004;
    private const int WithTables = 2004;

    /// <summary>Determines whether the content of a drawing is of another release than the one to be written.</summary>
    internal static bool IsNeeded(CadDrawing drawing, CadAcadVersion target) =>
        DrawingRelease.Year(drawing.ContentRelease ?? drawing.Version) != DrawingRelease.Year(target);

    /// <summary>Converts a drawing.</summary>
    /// <param name="source">The drawing, which stays as it is.</param>
    /// <param name="target">The release.</param>
    /// <param name="createMeasurer">Makes what measures texts that are wrapped; without it widths are
    /// approximate.</param>
    /// <param name="changes">Gets what could not be kept as it is.</param>
    /// <param name="hasBinarySolids">Whether the format has the binary data of solids with the solids.</param>
    internal static CadDrawing Convert(
        CadDrawing source,
        CadAcadVersion target,
        Func<ITextMeasurer?>? createMeasurer,
        List<string> changes,
        bool hasBinarySolids = false)
    {
        CadDrawing drawing = DrawingCopy.Of(source);
        ModelerSection.Carry(source, drawing);
        int from = DrawingRelease.Year(source.ContentRelease ?? source.Version);
        int to = DrawingRelease.Year(target);
        drawing.Header.AcadVersion = target;
        drawing.ContentRelease = target;
        if (to >= WithLayouts && from < WithLayouts)
        {
            ReleaseUpgrade.Apply(drawing, changes);
        }

        if (to < WithTables)
        {
            TableBlocks.Add(drawing);
        }

        if (to < WithTrueColors)
        {
            IndexedOnly.Apply(drawing, changes);
        }

        if (to < ModelerSection.Since)
        {
            drawing.RawSections.RemoveAll(static section => section.Name == "ACDSDATA");
            if (!hasBinarySolids)
            {
                RemoveBinarySolids(drawing, changes);
            }
        }

        ConvertEntities(drawing, to, createMeasurer, changes);
        if (to < WithRecords)
        {
            PlainRelease.Apply(drawing, changes);
        }
        else
        {
            RemoveOrphans(drawing);
        }

        return drawing;
    }

    private static void ConvertEntities(
        CadDrawing drawing, int release, Func<ITextMeasurer?>? createMeasurer, List<string> changes)
    {
        ITextMeasurer? measurer = null;
        bool isAsked = false;
        try
        {
            EntityConversion.Apply(drawing, new PlainEntities(drawing, release, Width), release, changes);
        }
        finally
        {
            measurer?.Dispose();
        }

        // Fonts are loaded for the first paragraph that has to be wrapped.
        double Width(CadText text)
        {
            const double approximateCharacterWidth = 0.9;
            measurer = isAsked ? measurer : createMeasurer?.Invoke();
            isAsked = true;
            return measurer?.Measure(new TextLine(text, Affine3.Identity, TextRole.Text)).Width
                ?? text.DefaultValue.Length * text.TextHeight * text.ScaleX * approximateCharacterWidth;
        }
    }

    // What belonged to entities that were left out, as the history of a solid, goes with them.
    private static void RemoveOrphans(CadDrawing drawing)
    {
        int count;
        do
        {
            count = drawing.Objects.Count;
            HashSet<ulong> present = DrawingWalk.Handles(drawing);
            foreach (CadObjectBase item in drawing.Objects.FindAll(
                item => item.Owner != 0 && !present.Contains(item.Owner)))
            {
                drawing.Objects.Remove(item);
            }
        }
        while (drawing.Objects.Count < count);
    }

    // Text is made of the binary data of solids, unless they are damaged or missing.
    private static void RemoveBinarySolids(CadDrawing drawing, List<string> changes)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            EntityConversion.RemoveWhere(
                block, static entity => entity is CadObjectWithAcisData { HasModelerData: true } solid
                    && solid.GetTextData().Count == 0, changes);
        }
    }
}
