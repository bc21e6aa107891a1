using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Copies entities by the fields that they exchange, so that nothing lists properties a second time.</summary>
internal static class EntityCopy
{
    // Groups that refer to other objects of the drawing by handle.
    private static readonly string[] Ties = ["ACAD_REACTORS", "ACAD_XDICTIONARY"];

    internal static CadEntityBase Of(CadEntityBase entity)
    {
        CadEntityBase copy = Alone(entity);
        switch (copy)
        {
            case CadBlockEntity block:
                ((CadBlockEntity)entity).Entities.ForEach(one => block.Entities.Add(Of(one)));
                break;
            case CadPolylineBase polyline:
                CadPolylineBase source = (CadPolylineBase)entity;
                source.Vertices.ForEach(vertex => polyline.Vertices.Add((CadVertexBase)Alone(vertex)));
                polyline.Seqend = Alone(source.Seqend);
                break;
            case CadInsertObject insert:
                CadInsertObject from = (CadInsertObject)entity;
                from.Attributes.ForEach(attribute => insert.Attributes.Add((CadAttrib)Alone(attribute)));
                insert.Seqend = Alone(from.Seqend);
                break;
        }

        return copy;
    }

    private static CadSeqend? Alone(CadSeqend? end) => end is null ? null : (CadSeqend)Alone((CadEntityBase)end);

    private static CadEntityBase Alone(CadEntityBase entity)
    {
        MemoryExchange fields = new(entity.ToString()!);
        entity.Exchange(fields);
        CadEntityBase copy = New(entity);
        fields.Rewind();
        copy.Exchange(fields);
        CopyAttached(entity, copy, Ties);
        return copy;
    }

    /// <summary>Copies what programs attached and what no class interprets.</summary>
    /// <param name="from">The object.</param>
    /// <param name="to">Its copy.</param>
    /// <param name="without">The names of groups that the copy does not get.</param>
    internal static void CopyAttached(CadBaseObject from, CadBaseObject to, string[] without)
    {
        to.Kept = from.Kept?.Copy();
        CopyXdata(from, to);
        CopyGroups(from, to, without);
    }

    private static CadEntityBase New(CadEntityBase entity) =>
        entity is RawEntity raw ? new RawEntity(raw.DxfName)
            : (CadEntityBase)Activator.CreateInstance(entity.GetType(), true)!;

    private static void CopyXdata(CadBaseObject entity, CadBaseObject copy)
    {
        foreach (CadXdata data in entity.XdataOrNull?.XdataEntities ?? [])
        {
            CadXdata added = new(data.RegisteredApplicationName);
            CopyTags(data.Data, added.Data);
            copy.XdataContainer.XdataEntities.Add(added);
        }
    }

    private static void CopyGroups(CadBaseObject entity, CadBaseObject copy, string[] without)
    {
        foreach (CadApplicationCodes group in entity.ApplicationCodesOrNull?.ApplicationCodes ?? [])
        {
            if (Array.IndexOf(without, group.ApplicationName) < 0)
            {
                CadApplicationCodes added = new(group.ApplicationName);
                CopyTags(group.Codes, added.Codes);
                copy.ApplicationCodesContainer.ApplicationCodes.Add(added);
            }
        }
    }

    internal static void CopyTags(IList<CadCodeValue> from, IList<CadCodeValue> to)
    {
        from.ForEach(tag => to.Add(new CadCodeValue(tag.Attribute, tag.Value)));
    }
}
