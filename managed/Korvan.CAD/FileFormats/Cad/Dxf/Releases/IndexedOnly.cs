using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Replaces true colours by the nearest index, for releases that have indexed colours alone.</summary>
internal static class IndexedOnly
{
    internal static void Apply(CadDrawing drawing, List<string> changes)
    {
        foreach (CadLayerTable layer in drawing.Layers)
        {
            if (layer.ColorValue >= 0)
            {
                int index = IndexedColors.Nearest(layer.ColorValue);
                layer.StoredColor = (short)(layer.IsOn ? index : -index);
                layer.ColorValue = -1;
                changes.Add("true colour of a layer: written as the nearest index");
            }
        }

        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            if (item is CadEntityBase entity)
            {
                Apply(entity, changes);
            }
        }
    }

    private static void Apply(CadEntityBase entity, List<string> changes)
    {
        if (entity.ColorValue >= 0)
        {
            entity.StoredColor = (short)IndexedColors.Nearest(entity.ColorValue);
            entity.ColorValue = -1;
            entity.ColorName = "";
            changes.Add("true colour: written as the nearest index");
        }

        if (entity is CadHatch { IsGradient: not 0 })
        {
            changes.Add("gradient: written as one colour");
        }

        if (entity.Transparency != 0)
        {
            entity.Transparency = 0;
            changes.Add("transparency: left out");
        }
    }
}
