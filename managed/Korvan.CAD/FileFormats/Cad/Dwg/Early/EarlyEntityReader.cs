using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Makes entities of records.</summary>
/// <param name="values">Reads the values of fields.</param>
internal sealed class EarlyEntityReader(EarlyValues values)
{
    private const int LineType = 1;
    private const int PointType = 2;
    private const int Line3DType = 21;
    private const int FaceType = 22;
    private const int VertexFlags = 70;
    private const int ThicknessCode = 39;

    private const int HasColor = 1;
    private const int HasLineType = 2;
    private const int HasElevation = 4;
    private const int HasThickness = 8;
    private const int HasHandle = 32;
    private const int HasMore = 64;
    private const int HasFollowers = 128;

    private const int HasXdata = 2;
    private const int HasViewport = 4;

    /// <summary>Gets whether vertices or attributes follow the last entity that was read.</summary>
    internal bool IsFollowed { get; private set; }

    /// <summary>Reads the current record.</summary>
    /// <param name="records">The records.</param>
    /// <param name="owner">Makes the entity for records of the type VERTEX.</param>
    internal CadEntityBase? Read(EarlyRecords records, Func<int, CadEntityBase?> owner)
    {
        EarlyBytes bytes = records.Bytes;
        EarlyEntityType type = TypeOf(records.Type, bytes);
        EarlyFieldReader fields = new(bytes);
        Common common = ReadCommon(records, fields);
        IsFollowed = (records.Flags & HasFollowers) != 0;
        values.Read(type.Fields, common.Options, bytes, fields);
        if (type.Create is null)
        {
            return null;
        }

        CadEntityBase entity = owner(fields.Peek(VertexFlags)) ?? type.Create(fields);
        common.GiveTo(entity);
        Fill(entity, fields);
        return entity;
    }

    /// <summary>Reads a record of release 1.4, which has no flags and no length.</summary>
    internal CadEntityBase? ReadOldest(int number, EarlyBytes bytes)
    {
        EarlyEntityType type = TypeOf(number, bytes);
        int layer = bytes.Int16();
        EarlyFieldReader fields = new(bytes);
        values.Read(type.Fields, 0, bytes, fields);
        CadEntityBase? entity = type.Create?.Invoke(fields);
        if (entity is not null)
        {
            entity.StoredLayer = layer.ToString(CultureInfo.InvariantCulture);
            Fill(entity, fields);
        }

        return entity;
    }

    // The name of a shape is in its file, which the number is the place in.
    private static void Fill(CadEntityBase entity, EarlyFieldReader fields)
    {
        fields.GiveTo(entity);
        if (entity is CadShape shape)
        {
            shape.ShapeNumber = fields.Peek(EarlyEntityFields.ShapeNumber);
            shape.StyleName = fields.PeekText(EarlyEntityFields.ShapeStyle);
        }
    }

    private static EarlyEntityType TypeOf(int number, EarlyBytes bytes) =>
        EarlyEntityFields.Of(number) ?? throw bytes.Fail(
            LoadDefectCode.UnknownEntity, bytes.Position, $"there is no entity of the type {number}");

    private Common ReadCommon(EarlyRecords records, EarlyFieldReader fields)
    {
        EarlyBytes bytes = records.Bytes;
        int flags = records.Flags;
        Common common = new()
        {
            Layer = EarlyNames.Find(values.Names.Layers, bytes.Int16(), "layer", bytes) ?? "0",
            Options = bytes.UInt16(),
        };
        int more = (flags & HasMore) != 0 ? bytes.Byte() : 0;
        if ((more & HasXdata) != 0)
        {
            common.Xdata = EarlyXdata.Read(bytes, values);
        }

        common.Color = (flags & HasColor) != 0 ? bytes.Byte() : common.Color;
        common.LineType = (flags & HasLineType) == 0 ? common.LineType
            : values.Names.LineType(values.Release >= EarlyRelease.R11 ? bytes.Int16() : bytes.Byte(), bytes);
        bool hasElevation = (flags & HasElevation) != 0;
        values.IsFlat = hasElevation;
        values.Elevation = hasElevation && !IsSpatial(records.Type) ? bytes.Double() : 0;
        if ((flags & HasThickness) != 0)
        {
            fields.Add(ThicknessCode, bytes.Double());
        }

        common.Handle = bytes.Handle = (flags & HasHandle) != 0 ? bytes.BigEndian(bytes.Byte()) : 0;
        common.IsOnPaper = (more & HasViewport) != 0;
        if (common.IsOnPaper)
        {
            bytes.Take(sizeof(short));
        }

        return common;
    }

    // From release 10 on, these have points in space, so that the flag states that there is no Z.
    private bool IsSpatial(int type) => values.Release >= EarlyRelease.R10
        && type is LineType or PointType or Line3DType or FaceType;

    /// <summary>What all entities have.</summary>
    private sealed class Common
    {
        internal string Layer { get; init; } = "0";

        internal int Options { get; init; }

        internal short Color { get; set; } = 256;

        internal string LineType { get; set; } = "BYLAYER";

        internal ulong Handle { get; set; }

        internal bool IsOnPaper { get; set; }

        internal List<CadXdata> Xdata { get; set; } = [];

        internal void GiveTo(CadEntityBase entity)
        {
            entity.StoredLayer = Layer;
            entity.StoredColor = Color;
            entity.LineTypeName = LineType;
            entity.Handle = Handle;
            entity.SpaceMode = IsOnPaper ? CadEntitySpaceMode.PaperSpace : CadEntitySpaceMode.ModelSpace;
            foreach (CadXdata xdata in Xdata)
            {
                entity.XdataContainer.XdataEntities.Add(xdata);
            }
        }
    }
}
