using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Reads one object: what all have in common, and through its codec what is its own.</summary>
internal sealed class DxfObjectReader(DxfTagReader tags)
{
    // The markers of the current object so far: a second one begins no fields of its class.
    private readonly HashSet<string> _entered = [];
    // Whether the marker of the class itself was there, or is known to come.
    private bool _hasOwn;

    internal CadEntityBase ReadEntity(string name) => ReadEntity(Create(name));

    /// <summary>Reads into an entity that was made for it.</summary>
    internal CadEntityBase ReadEntity(CadEntityBase entity)
    {
        ReadBody(entity);
        switch (entity)
        {
            case CadPolylineBase polyline:
                ReadVertices(polyline);
                break;
            case CadInsertObject insert:
                ReadAttributes(insert);
                break;
            case CadAttDef { XrecordObject: { } record }:
                ReadLines(entity, record);
                break;
        }

        return entity;
    }

    internal void ReadBody(CadBaseObject target)
    {
        Budget.Check();
        _entered.Clear();
        _hasOwn = false;
        tags.EnterSubclass(null);
        tags.CurrentHandle = 0;
        while (tags.Next())
        {
            int code = tags.Code;
            if (code == 0)
            {
                break;
            }

            if (!ReadCommon(code, target) && !target.ReadField(code, tags) && !ReadUnmarked(code, target))
            {
                Keep(target, tags.Subclass == FieldReader.AnySubclass ? target.OwnSubclass : tags.Subclass);
            }
        }

        tags.CurrentHandle = 0;
        tags.Unread();
    }

    // Some programs leave out the marker of an entity's own subclass, or write another one.
    private bool ReadUnmarked(int code, CadBaseObject target)
    {
        string own = target.OwnSubclass;
        if (target is not CadEntityBase || own.Length == 0 || _hasOwn
            || tags.Subclass is null or KeptTag.Verbatim or FieldReader.AnySubclass)
        {
            return false;
        }

        _hasOwn = tags.HasMarker(own);
        if (_hasOwn)
        {
            return false;
        }

        tags.EnterSubclass(FieldReader.AnySubclass);
        return target.ReadField(code, tags);
    }

    private void Keep(CadBaseObject target, string? subclass)
    {
        KeptTags.Of(target).Tags.Add(new KeptTag(subclass, tags.ToCodeValue()));
    }

    private static bool IsRaw(CadBaseObject target) => target is RawEntity or RawObject;

    private bool ReadCommon(int code, CadBaseObject target)
    {
        if (code is > 5 and < 100)
        {
            return false;
        }

        switch (code)
        {
            case 5 when tags.Subclass is null && target is not CadDimensionStyleTable:
            case 105 when target is CadDimensionStyleTable:
                target.Handle = tags.GetHandle();
                tags.CurrentHandle = target.Handle;
                return true;
            case 100:
                EnterSubclass(target);
                return true;
            case 330 when tags.Subclass is null && target is CadOwnedObjectBase owned:
                owned.Owner = tags.GetHandle();
                return true;
            case 101 or 102 when target is CadXRecord && tags.Subclass is not null:
                return false;
            case 101:
                ReadEmbedded(target);
                return true;
            case 102:
                ReadGroup(target);
                return true;
            case >= 1000:
                return ReadXdata(target);
            default:
                return false;
        }
    }

    private void EnterSubclass(CadBaseObject target)
    {
        string name = tags.GetName();
        if (IsRaw(target) && !(target is RawEntity && tags.Subclass is null && name == "AcDbEntity"))
        {
            ReadVerbatim(target);
            return;
        }

        bool isFirst = !target.HasOrderedFields || _entered.Add(name);
        if (!isFirst || !target.HasSubclass(name))
        {
            ReadUnknownSubclass(target);
            return;
        }

        name = name == CadInsertObject.GridMarker ? CadInsertObject.SingleMarker : name;
        _hasOwn |= name == target.OwnSubclass;
        tags.EnterSubclass(name);
    }

    private void ReadVerbatim(CadBaseObject target)
    {
        do
        {
            Keep(target, KeptTag.Verbatim);
        }
        while (tags.Next() && tags.Code is not 0 and < 1000);
        tags.EnterSubclass(KeptTag.Verbatim);
        tags.Unread();
    }

    // A subclass that the class does not know is kept with its marker, up to the next one.
    private void ReadUnknownSubclass(CadBaseObject target)
    {
        do
        {
            Keep(target, KeptTag.Verbatim);
        }
        while (tags.Next() && tags.Code is not (0 or 100 or 101 or 1001));
        tags.EnterSubclass(KeptTag.Verbatim);
        tags.Unread();
    }

    private void ReadEmbedded(CadBaseObject target)
    {
        List<CadCodeValue> embedded = KeptTags.Of(target).Embedded ??= [];
        do
        {
            embedded.Add(tags.ToCodeValue());
        }
        while (tags.Next() && tags.Code is not 0 and < 1000);
        tags.Unread();
    }

    private void ReadGroup(CadBaseObject target)
    {
        string name = tags.GetName();
        if (tags.Subclass is not null || !name.StartsWith('{'))
        {
            KeepGroup(target, name);
            return;
        }

        CadApplicationCodes group = new(name[1..]);
        target.ApplicationCodesContainer.ApplicationCodes.Add(group);
        while (tags.Next() && tags.Code is not 0 and not 102)
        {
            group.Codes.Add(tags.ToCodeValue());
        }

        UnreadUnlessGroupEnd();
    }

    private void KeepGroup(CadBaseObject target, string name)
    {
        Keep(target, tags.Subclass);
        if (!name.StartsWith('{'))
        {
            return;
        }

        while (tags.Next() && tags.Code != 0)
        {
            Keep(target, tags.Subclass);
            if (tags.Code == 102)
            {
                return;
            }
        }

        tags.Unread();
    }

    private void UnreadUnlessGroupEnd()
    {
        if (tags.Code != 102)
        {
            tags.Unread();
        }
    }

    private bool ReadXdata(CadBaseObject target)
    {
        IList<CadXdata> all = target.XdataContainer.XdataEntities;
        if (tags.Code == 1001)
        {
            all.Add(new CadXdata(tags.GetName()));
            return true;
        }

        if (all.Count == 0)
        {
            return false;
        }

        all[^1].Data.Add(tags.ToCodeValue());
        return true;
    }

    private CadEntityBase Create(string name) => name switch
    {
        "POLYLINE" => CreatePolyline(tags.Peek(70) ?? 0),
        "VERTEX" => new Cad2DVertex(),
        "MLEADER" => new CadMLeader(),
        "WIPEOUT" => tags.HasMarker("AcDbRasterImage") ? new CadWipeoutRasterImage() : new CadWipeout(),
        "DIMENSION" => CreateDimension(tags.Peek(70) ?? 0),
        _ => ObjectTypes.CreateEntity(name) ?? new RawEntity(name),
    };

    internal static CadPolylineBase CreatePolyline(int flags) => (CadPolylineFlag)flags switch
    {
        var flag when (flag & CadPolylineFlag.PolyfaceMesh) != 0 => new CadPolyFaceMesh(),
        var flag when (flag & CadPolylineFlag.PolygonMesh) != 0 => new CadPolygonMesh(),
        var flag when (flag & CadPolylineFlag.Polyline3D) != 0 => new CadPolyline3D(),
        _ => new CadPolyline(),
    };

    internal static CadDimensionBase CreateDimension(int type) => (CadDimensionType)(type & 7) switch
    {
        CadDimensionType.Aligned => new CadAlignedDimension(),
        CadDimensionType.Angular => new Cad2LineAngularDimension(),
        CadDimensionType.Diameter => new CadDiametricDimension(),
        CadDimensionType.Radius => new CadRadialDimension(),
        CadDimensionType.Angular3Point => new CadAngularDimension(),
        CadDimensionType.Ordinate => new CadDimensionOrdinate(),
        _ => new CadRotatedDimension(),
    };

    private void ReadVertices(CadPolylineBase polyline)
    {
        while (tags.Next())
        {
            if (tags.Code == 0 && tags.ValueIs("VERTEX"u8))
            {
                CadVertexBase vertex = polyline.CreateVertex(tags.Peek(70) ?? 0);
                ReadBody(vertex);
                polyline.Vertices.Add(vertex);
            }
            else
            {
                polyline.Seqend = ReadSeqend();
                return;
            }
        }
    }

    private void ReadAttributes(CadInsertObject insert)
    {
        while (tags.Next())
        {
            if (tags.Code == 0 && tags.ValueIs("ATTRIB"u8))
            {
                CadAttrib attribute = new();
                ReadBody(attribute);
                insert.Attributes.Add(attribute);
                if (attribute.XrecordObject is { } record)
                {
                    ReadLines(attribute, record);
                }
            }
            else
            {
                // Some programs end a list of no attributes as well.
                insert.Seqend = ReadSeqend();
                return;
            }
        }
    }

    // Where the record of an attribute says so, its text of several lines is the next entity.
    private void ReadLines(CadEntityBase attribute, CadXrecordObject record)
    {
        if (record.IsMultiline == 0 || attribute.Embedded is not null || !tags.Next())
        {
            return;
        }

        if (tags.Code != 0 || !tags.ValueIs("MTEXT"u8))
        {
            tags.Unread();
            return;
        }

        CadMText lines = new();
        ReadBody(lines);
        KeptTags.Of(attribute).Embedded = EmbeddedMText.ToTags(lines);
        record.IsMultiline = 0;
    }

    private CadSeqend? ReadSeqend()
    {
        if (tags.Code != 0 || !tags.ValueIs("SEQEND"u8))
        {
            return Decline();
        }

        CadSeqend end = new();
        ReadBody(end);
        return end;
    }

    private CadSeqend? Decline()
    {
        tags.Unread();
        return null;
    }
}
