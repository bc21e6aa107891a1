using System;
using System.Collections.Generic;
using System.Globalization;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.WrpGen.Interop;

/// <summary>Hands the numbers of all entities of a kind to Python in one call.</summary>
public static unsafe class EntityRowsHost
{
    /// <summary>Fills the places of four bytearrays (rows, ends, indices, closed), each a new reference or 0 after an
    /// error, and of the number of columns. Layers are separated by line breaks; null for all. Of the kind "BOUNDS",
    /// the boxes of the entities of a layout are collected, whose name is in the place of the layers. Of the kind
    /// "DIGESTS", the decimals that numbers are compared by are in their place.</summary>
    [UnmanagedCallersOnly]
    public static int call_Collect(
        nint source, PyStringArg* kind, PyStringArg* layers, nint* arrays, int* width)
    {
        try
        {
            EntityRows rows = RowsOf(Handles.Target(source), PyText.Read(kind) ?? "", PyText.Read(layers));
            if (rows.Values.Length > int.MaxValue / sizeof(double))
            {
                throw new ArgumentException("The entities have more than 2 GiB of numbers; ask for some layers only.");
            }
            *width = rows.Width;
            arrays[0] = NewArray(MemoryMarshal.AsBytes(rows.Values));
            arrays[1] = NewArray(MemoryMarshal.AsBytes(rows.Ends));
            arrays[2] = NewArray(MemoryMarshal.AsBytes(rows.Indices));
            arrays[3] = NewArray(rows.Closed);
            return 0;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    private static EntityRows RowsOf(object? source, string kind, string? layers)
    {
        if (source is CadImage drawing && kind == "BOUNDS")
        {
            return EntityRows.BoundsOf(drawing.Drawing, drawing.GetLayoutEntities(layers ?? "Model"));
        }

        IEnumerable<CadEntityBase> entities = source switch
        {
            CadImage image => image.Entities,
            CadBlockEntity block => block.Entities,
            IEnumerable<CadEntityBase> list => list,
            _ => throw new ArgumentException("The source of entities has to be a drawing, a block or a list."),
        };
        return kind == "DIGESTS"
            ? EntityRows.DigestsOf(entities, int.Parse(layers ?? "6", CultureInfo.InvariantCulture))
            : EntityRows.Of(entities, kind, layers?.Split('\n'));
    }

    private static nint NewArray(ReadOnlySpan<byte> bytes)
    {
        fixed (byte* start = bytes)
        {
            return PyHost.NewBytes(start, bytes.Length);
        }
    }
}
