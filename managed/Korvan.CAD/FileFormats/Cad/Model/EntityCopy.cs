using System;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Copies entities by what their codecs write and read, so that nothing lists properties a second
/// time.</summary>
internal static class EntityCopy
{
    private const int Release = 2018;

    // Groups that refer to other objects of the drawing by handle.
    private static readonly string[] Ties = ["ACAD_REACTORS", "ACAD_XDICTIONARY"];

    internal static CadEntityBase Of(CadEntityBase entity)
    {
        using MemoryStream content = new();
        DxfTagWriter writer = new(content, new UTF8Encoding(false), Release);
        new DxfObjectWriter(writer).WriteEntity(entity);
        writer.Flush();

        DxfTagReader tags = new(content.ToArray(), entity.ToString()!) { Encoding = Encoding.UTF8 };
        tags.Next();
        CadEntityBase copy = new DxfObjectReader(tags).ReadEntity(New(entity));
        Untie(copy);
        switch (copy)
        {
            case CadBlockEntity block:
                ((CadBlockEntity)entity).Entities.ForEach(one => block.Entities.Add(Of(one)));
                break;
            case CadPolylineBase polyline:
                polyline.Vertices.ForEach(Untie);
                Untie(polyline.Seqend);
                break;
            case CadInsertObject insert:
                insert.Attributes.ForEach(Untie);
                Untie(insert.Seqend);
                break;
        }

        return copy;
    }

    private static CadEntityBase New(CadEntityBase entity) =>
        entity is RawEntity raw ? new RawEntity(raw.DxfName)
            : (CadEntityBase)Activator.CreateInstance(entity.GetType(), true)!;

    private static void Untie(CadEntityBase? copy)
    {
        if (copy is not null)
        {
            (copy.Handle, copy.Owner) = (0, 0);
            copy.ApplicationCodesOrNull?.ApplicationCodes.RemoveAll(static group =>
                Array.IndexOf(Ties, group.ApplicationName) >= 0);
        }
    }
}
