using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The binary data of solids in the data section of drawings of release 2013 and later.</summary>
internal static class ModelerSection
{
    /// <summary>Gives solids the data that are theirs.</summary>
    internal static void Attach(CadDrawing drawing)
    {
        var records = new Dictionary<ulong, CadAcdsRecord>();
        foreach (CadAcdsRecord record in drawing.AcdsData.Items.Items.OfType<CadAcdsRecord>())
        {
            if (ulong.TryParse(
                record.OwnerHandle, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out ulong owner))
            {
                records.TryAdd(owner, record);
            }
        }

        if (records.Count == 0)
        {
            return;
        }

        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(drawing).OfType<CadObjectWithAcisData>())
        {
            solid.DataRecord = records.GetValueOrDefault(solid.Handle) ?? solid.DataRecord;
        }
    }

    /// <summary>Gives the solids of a copy of a drawing the data that those of the drawing have.</summary>
    internal static void Carry(CadDrawing source, CadDrawing copy)
    {
        var records = new Dictionary<ulong, CadAcdsRecord>();
        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(source).OfType<CadObjectWithAcisData>())
        {
            if (solid is { DataRecord: { } record, Handle: not 0 })
            {
                records.TryAdd(solid.Handle, record);
            }
        }

        if (records.Count == 0)
        {
            return;
        }

        foreach (CadObjectWithAcisData solid in DrawingWalk.Entities(copy).OfType<CadObjectWithAcisData>())
        {
            solid.DataRecord ??= records.GetValueOrDefault(solid.Handle);
        }
    }
}
