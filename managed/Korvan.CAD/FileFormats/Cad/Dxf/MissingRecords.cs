using System;
using System.Collections.Generic;
using System.Linq;
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
        HashSet<string> layers = DrawingIntegrity.NamesOf(drawing.Layers.Items.Select(static layer => layer.Name));
        HashSet<string> lineTypes = DrawingIntegrity.NamesOf(drawing.LineTypes.Items.Select(static type => type.Name));
        HashSet<string> styles = DrawingIntegrity.NamesOf(drawing.Styles.Items.Select(static style => style.Name));
        HashSet<string> dimensionStyles =
            DrawingIntegrity.NamesOf(drawing.DimensionStyles.Items.Select(static style => style.Name));
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            Add(drawing, layers, lineTypes, styles, entity);
            if (entity is CadInsertObject { Attributes.Count: > 0 } insert)
            {
                insert.Attributes.ForEach(attribute => Add(drawing, layers, lineTypes, styles, attribute));
            }

            if (entity is CadDimensionBase dimension && IsMissing(dimensionStyles, dimension.StyleName))
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
        if (layers.Add(layer) && layer.Length > 0)
        {
            drawing.Layers.Add(CadLayerTable.Stored(layer));
        }

        if (IsMissing(lineTypes, entity.LineTypeName))
        {
            drawing.LineTypes.Add(new CadLineTypeTableObject { Name = entity.LineTypeName });
        }

        string style = (entity as CadText)?.StyleType ?? (entity as CadMText)?.TextStyleName ?? "";
        if (IsMissing(styles, style))
        {
            drawing.Styles.Add(new CadStyleTableObject { Name = style });
        }
    }

    private static bool IsMissing(HashSet<string> known, string name) => !Implied.Contains(name) && known.Add(name);
}
