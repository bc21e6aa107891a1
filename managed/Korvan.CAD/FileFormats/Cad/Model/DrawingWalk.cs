using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Ways through a drawing, which the time limit of a call may end.</summary>
internal static class DrawingWalk
{
    /// <summary>Gives the entities of all blocks, model and paper space among them, without their parts.</summary>
    internal static IEnumerable<CadEntityBase> Entities(CadDrawing drawing)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            foreach (CadEntityBase entity in block.Entities)
            {
                Budget.Check();
                yield return entity;
            }
        }
    }

    /// <summary>Gives everything that has a handle.</summary>
    internal static IEnumerable<CadBaseObject> All(CadDrawing drawing)
    {
        foreach (string table in TableRecords.Names)
        {
            if (drawing.TableHeaders.TryGetValue(table, out CadTableHeader? header))
            {
                yield return header;
            }

            foreach (CadBaseObject record in TableRecords.Of(drawing, table))
            {
                yield return record;
            }
        }

        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            yield return block;
            yield return block.End;
            foreach (CadEntityBase entity in block.Entities)
            {
                Budget.Check();
                yield return entity;
                foreach (CadBaseObject part in Parts(entity))
                {
                    yield return part;
                }
            }
        }

        foreach (CadObjectBase item in drawing.Objects)
        {
            Budget.Check();
            yield return item;
        }
    }

    /// <summary>Gets the handles of everything that has one, or of what a condition holds for.</summary>
    internal static HashSet<ulong> Handles(CadDrawing drawing, Predicate<CadBaseObject>? condition = null)
    {
        HashSet<ulong> handles = [];
        foreach (CadBaseObject item in All(drawing))
        {
            if (condition is null || condition(item))
            {
                handles.Add(item.Handle);
            }
        }

        handles.Remove(0);
        return handles;
    }

    private static IEnumerable<CadBaseObject> Parts(CadEntityBase entity) => entity switch
    {
        CadPolylineBase polyline => WithEnd(polyline.Vertices, polyline.Seqend),
        CadInsertObject insert => WithEnd(insert.Attributes, insert.Seqend),
        _ => [],
    };

    private static IEnumerable<CadBaseObject> WithEnd(IEnumerable<CadBaseObject> parts, CadSeqend? end)
    {
        foreach (CadBaseObject part in parts)
        {
            yield return part;
        }

        if (end is not null)
        {
            yield return end;
        }
    }
}
