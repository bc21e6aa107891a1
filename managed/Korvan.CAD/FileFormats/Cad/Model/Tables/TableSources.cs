using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model.Tables;

/// <summary>What tables refer to: styles, blocks and fields by their handles, which are collected when the first table
/// asks.</summary>
internal sealed class TableSources(CadDrawing drawing)
{
    private readonly Lazy<Dictionary<string, CadObjectBase>> _objects = new(() => Objects(drawing));
    private readonly Lazy<Dictionary<string, CadBlockEntity>> _blocks = new(() => Blocks(drawing));

    /// <summary>Returns the style of a handle; the style of new drawings where there is none.</summary>
    internal CadTableStyle StyleOf(string handle) => Find(handle) as CadTableStyle ?? new CadTableStyle();

    /// <summary>Returns the string that a field shows.</summary>
    internal string TextOf(string handle)
    {
        for (int i = 0; i < 2 && Find(handle) is CadField field; i++)
        {
            if (field.ValueText.Length > 0)
            {
                return field.ValueText;
            }

            // A field of texts only holds another one.
            handle = field.ChildHandles.Count > 0 ? field.ChildHandles[0] : "";
        }

        return "";
    }

    /// <summary>Returns the block of a record; null for none.</summary>
    internal CadBlockEntity? BlockOf(string handle) => _blocks.Value.GetValueOrDefault(handle.TrimStart('0'));

    /// <summary>Returns the extents of a block in its own coordinates.</summary>
    internal Extents ExtentsOf(CadBlockEntity block) => DrawingExtents.OfBlock(drawing, block);

    private CadObjectBase? Find(string handle) => _objects.Value.GetValueOrDefault(handle.TrimStart('0'));

    private static Dictionary<string, CadObjectBase> Objects(CadDrawing drawing)
    {
        var objects = new Dictionary<string, CadObjectBase>(StringComparer.OrdinalIgnoreCase);
        foreach (CadObjectBase item in drawing.Objects)
        {
            if (item is CadTableStyle or CadField)
            {
                objects.TryAdd(item.ObjectHandle, item);
            }
        }

        return objects;
    }

    private static Dictionary<string, CadBlockEntity> Blocks(CadDrawing drawing)
    {
        var blocks = new Dictionary<string, CadBlockEntity>(StringComparer.OrdinalIgnoreCase);
        foreach (CadBlockTableObject record in drawing.BlockRecords)
        {
            if (drawing.BlockEntities.Find(record.Name) is { } block)
            {
                blocks.TryAdd(record.ObjectHandle, block);
            }
        }

        return blocks;
    }
}
