using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The objects that drawing databases have for colours of books. Text files state such a colour by its name,
/// without an object.</summary>
internal static class BookColors
{
    private const string Entry = "ACAD_COLOR";
    private const int WithTrueColors = 2004;

    /// <summary>Adds an object for each colour of a book that entities name, and has none; handles are assigned
    /// later.</summary>
    /// <returns>The objects.</returns>
    internal static List<CadDbColor> AddMissing(CadDrawing drawing, int release)
    {
        List<CadDbColor> added = [];
        if (release < WithTrueColors)
        {
            return added;
        }

        HashSet<string> known = new(
            drawing.Objects.OfType<CadDbColor>().Select(static color => color.ColorName), StringComparer.Ordinal);
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            if (entity.ColorName.Length > 0 && known.Add(entity.ColorName))
            {
                added.Add(new CadDbColor { ColorName = entity.ColorName, ColorValue = entity.ColorValue });
            }
        }

        added.ForEach(drawing.Objects.Add);
        return added;
    }

    /// <summary>Enters objects that were added in the dictionary of colours.</summary>
    internal static void Link(CadDrawing drawing, List<CadDbColor> added)
    {
        if (added.Count == 0 || drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault() is not { } root)
        {
            return;
        }

        CadDictionaryBase? colors = root.TryGet(Entry, out ulong handle)
            ? drawing.Objects.OfType<CadDictionaryBase>().FirstOrDefault(item => item.Handle == handle) : null;
        if (colors is null)
        {
            colors = new CadDictionary { Owner = root.Handle };
            drawing.Objects.Add(colors);
            HandleAllocator.Assign(drawing, true);
            root.Set(Entry, colors.Handle);
        }

        foreach (CadDbColor color in added)
        {
            colors.Set(color.ColorName, color.Handle);
            color.Owner = colors.Handle;
        }
    }
}
