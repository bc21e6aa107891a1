using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Carries what all objects and all entities have before their own fields. Source: Open Design Specification
/// for .dwg files, 5.4.1, sections 20.1, 20.2, 20.4.1 and 20.4.2.</summary>
internal static class CommonData
{
    private const int HandleFollows = 3;
    private const int ByBlock = 1;
    private const int Continuous = 2;
    private const int ColorIndexMask = 0x1FF;
    private const int HasTransparency = 0x2000;
    private const int HasColorObject = 0x4000;
    private const int HasRgb = 0x8000;
    private const int RgbMask = 0xFFFFFF;
    private const int VisualStyle = 348;
    private const string Marker = "AcDbEntity";

    /// <summary>Carries what an object has that is no entity.</summary>
    internal static void ExchangeObject(BitExchange fields, ObjectFrame frame)
    {
        int reactors = fields.CountLong(frame.Reactors.Count);
        bool hasDictionary = fields.Release < 2004 || !fields.Bit(frame.Dictionary == 0);
        if (fields.Release >= 2013)
        {
            fields.HasStoredData = fields.Bit(fields.HasStoredData);
        }

        frame.Owner = fields.Handle(HandleRole.SoftPointer, frame.Owner);
        ExchangeLinks(fields, frame, reactors, hasDictionary);
    }

    /// <summary>Carries what an entity has.</summary>
    internal static void ExchangeEntity(BitExchange fields, CadEntityBase entity, ObjectFrame frame)
    {
        frame.Mode = fields.BitPair(frame.Mode);
        int reactors = fields.CountLong(frame.Reactors.Count);
        int lineType = fields.IsReading ? 0 : LineTypeKind(entity, fields.Release);
        if (fields.Release < 2000)
        {
            lineType = fields.Bit(lineType == 0) ? 0 : HandleFollows;
        }

        bool hasDictionary = fields.Release < 2004 || !fields.Bit(frame.Dictionary == 0);
        frame.IsBetweenNeighbours = fields.Release >= 2004 || fields.Bit(frame.IsBetweenNeighbours);
        if (fields.Release >= 2013)
        {
            fields.HasStoredData = fields.Bit(fields.HasStoredData);
        }

        bool hasColor = ExchangeColor(fields, entity, frame);
        entity.LinetypeScale = fields.BitDouble(entity.LinetypeScale);
        Kinds kinds = ExchangeKinds(fields, entity, lineType);
        entity.Visible = (short)(fields.BitShort(entity.Visible) & 1);
        if (fields.Release >= 2000)
        {
            entity.LineWeight = LineWeights.ToLineWeight(fields.RawByte(LineWeights.ToNumber(entity.LineWeight)));
        }

        ExchangeHandles(fields, frame, reactors, hasDictionary);
        if (hasColor)
        {
            frame.Color = fields.Handle(HandleRole.HardPointer, frame.Color);
        }

        ExchangeAppearance(fields, entity, frame, kinds);
    }

    private static void ExchangeHandles(BitExchange fields, ObjectFrame frame, int reactors, bool hasDictionary)
    {
        if (frame.Mode == ObjectFrame.OwnerIsStated)
        {
            frame.Owner = fields.Handle(HandleRole.SoftPointer, frame.Owner);
        }

        ExchangeLinks(fields, frame, reactors, hasDictionary);
    }

    private static void ExchangeLinks(BitExchange fields, ObjectFrame frame, int reactors, bool hasDictionary)
    {
        for (int i = 0; i < reactors; i++)
        {
            ulong reactor = fields.Handle(HandleRole.SoftPointer, fields.IsReading ? 0 : frame.Reactors[i]);
            if (fields.IsReading)
            {
                frame.Reactors.Add(reactor);
            }
        }

        if (hasDictionary)
        {
            frame.Dictionary = fields.Handle(HandleRole.HardOwner, frame.Dictionary);
        }
    }

    /// <returns>Whether the reference to a colour follows.</returns>
    private static bool ExchangeColor(BitExchange fields, CadEntityBase entity, ObjectFrame frame)
    {
        if (fields.Release < 2004)
        {
            entity.StoredColor = (short)fields.BitShort(entity.StoredColor);
            return false;
        }

        int flags = (frame.Color != 0 ? HasColorObject | HasRgb : entity.ColorValue >= 0 ? HasRgb : 0)
            | (entity.Transparency != 0 ? HasTransparency : 0);
        flags = fields.BitShort((entity.StoredColor & ColorIndexMask) | flags);
        entity.StoredColor = (short)(flags & ColorIndexMask);
        if ((flags & HasRgb) != 0 && (flags & HasColorObject) == 0)
        {
            uint rgb = (uint)fields.BitLong(unchecked((int)PackedColor.Pack(0, entity.ColorValue)));
            entity.ColorValue = (int)(rgb & RgbMask);
        }

        if ((flags & HasTransparency) != 0)
        {
            entity.Transparency = fields.BitLong(entity.Transparency);
        }

        return (flags & HasColorObject) != 0;
    }

    private static Kinds ExchangeKinds(BitExchange fields, CadEntityBase entity, int lineType)
    {
        Kinds kinds = new() { LineType = lineType };
        if (fields.Release >= 2000)
        {
            kinds.LineType = fields.BitPair(lineType);
        }

        if (fields.Release >= 2007)
        {
            kinds.Material = fields.BitPair(entity.Material.Length > 0 ? HandleFollows : 0);
            entity.ShadowMode = (CadShadowMode)fields.RawByte((int)entity.ShadowMode);
        }

        if (fields.Release >= 2000)
        {
            kinds.PlotStyle = fields.BitPair(entity.PlotStyle.Length > 0 ? HandleFollows : 0);
        }

        if (fields.Release >= 2010)
        {
            kinds.HasVisualStyle = fields.Bit(!fields.IsReading && VisualStyleOf(entity) != "0");
            kinds.OtherStyles = (fields.Bit(false) ? 1 : 0) + (fields.Bit(false) ? 1 : 0);
        }

        return kinds;
    }

    private static void ExchangeAppearance(BitExchange fields, CadEntityBase entity, ObjectFrame frame, Kinds kinds)
    {
        if (fields.Release < 2000)
        {
            entity.StoredLayer = fields.Name(SymbolTable.Layer, entity.StoredLayer);
            ExchangeLineType(fields, entity, kinds.LineType);
            ExchangeNeighbours(fields, frame);
            return;
        }

        ExchangeNeighbours(fields, frame);
        entity.StoredLayer = fields.Name(SymbolTable.Layer, entity.StoredLayer);
        ExchangeLineType(fields, entity, kinds.LineType);
        if (kinds.Material == HandleFollows)
        {
            entity.Material = fields.Handle(HandleRole.HardPointer, entity.Material);
        }

        if (kinds.PlotStyle == HandleFollows)
        {
            entity.PlotStyle = fields.Handle(HandleRole.HardPointer, entity.PlotStyle);
        }

        if (kinds.HasVisualStyle)
        {
            string style = fields.Handle(HandleRole.HardPointer, fields.IsReading ? "0" : VisualStyleOf(entity));
            if (fields.IsReading)
            {
                KeptTags.Of(entity).Tags.Add(new KeptTag(Marker, new CadCodeValue(VisualStyle, style)));
            }
        }

        for (int i = 0; i < kinds.OtherStyles; i++)
        {
            fields.Handle(HandleRole.HardPointer, 0);
        }
    }

    // No entity has a property for it, as programs set it for single viewports only.
    private static string VisualStyleOf(CadEntityBase entity) =>
        entity.KeptTags?.Tags.Find(static tag => tag.Subclass == Marker && tag.Value.Attribute == VisualStyle)
            .Value?.Value.Trim() ?? "0";

    private static void ExchangeNeighbours(BitExchange fields, ObjectFrame frame)
    {
        if (!frame.IsBetweenNeighbours)
        {
            frame.Previous = fields.Handle(HandleRole.SoftPointer, frame.Previous);
            frame.Next = fields.Handle(HandleRole.SoftPointer, frame.Next);
        }
    }

    private static void ExchangeLineType(BitExchange fields, CadEntityBase entity, int kind)
    {
        switch (kind)
        {
            case HandleFollows:
                entity.LineTypeName = fields.Name(SymbolTable.LineType, entity.LineTypeName);
                break;
            case ByBlock when fields.IsReading:
                entity.LineTypeName = "BYBLOCK";
                break;
            case Continuous when fields.IsReading:
                entity.LineTypeName = "CONTINUOUS";
                break;
        }
    }

    private static int LineTypeKind(CadEntityBase entity, int release) => entity.LineTypeName.ToUpperInvariant() switch
    {
        "BYLAYER" or "" => 0,
        "BYBLOCK" when release >= 2000 => ByBlock,
        "CONTINUOUS" when release >= 2000 => Continuous,
        _ => HandleFollows,
    };

    /// <summary>How the line type and so on are stated: 3 by a reference.</summary>
    private struct Kinds
    {
        internal int LineType;
        internal int PlotStyle;
        internal int Material;
        internal bool HasVisualStyle;
        internal int OtherStyles;
    }
}
