using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Adds the records of symbol tables that entities name and the tables lack.</summary>
internal static class MissingRecords
{
    private static readonly HashSet<string> Implied =
        new(["", "BYLAYER", "BYBLOCK", "CONTINUOUS", "STANDARD"], StringComparer.OrdinalIgnoreCase);

    internal static void Add(CadDrawing drawing)
    {
        var layers = new HashSet<string>();
        var lineTypes = new HashSet<string>(Implied, Implied.Comparer);
        var styles = new HashSet<string>(Implied, Implied.Comparer);
        var dimensionStyles = new HashSet<string>(Implied, Implied.Comparer);
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            Add(drawing, layers, lineTypes, styles, entity);
            if (entity is CadInsertObject { Attributes.Count: > 0 } insert)
            {
                insert.Attributes.ForEach(attribute => Add(drawing, layers, lineTypes, styles, attribute));
            }

            if (entity is CadDimensionBase dimension && dimensionStyles.Add(dimension.StyleName)
                && !drawing.DimensionStyles.Contains(dimension.StyleName))
            {
                drawing.DimensionStyles.Add(new CadDimensionStyleTable { Name = dimension.StyleName });
            }
        }
    }

    private static void Add(
        CadDrawing drawing,
        HashSet<string> layers,
        HashSet<string> lineTypes,
        HashSet<string> styles,
        CadEntityBase entity)
    {
        string layer = entity.LayerName;
        if (layers.Add(layer) && layer.Length > 0 && !drawing.Layers.Contains(layer))
        {
            drawing.Layers.Add(CadLayerTable.Stored(layer));
        }

        if (lineTypes.Add(entity.LineTypeName) && !drawing.LineTypes.Contains(entity.LineTypeName))
        {
            drawing.LineTypes.Add(new CadLineTypeTableObject { Name = entity.LineTypeName });
        }

        string style = (entity as CadText)?.StyleType ?? (entity as CadMText)?.TextStyleName ?? "";
        if (styles.Add(style) && !drawing.Styles.Contains(style))
        {
            drawing.Styles.Add(new CadStyleTableObject { Name = style });
        }
    }
}
