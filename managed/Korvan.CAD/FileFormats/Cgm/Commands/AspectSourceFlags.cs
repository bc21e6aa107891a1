using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which attributes are taken from bundles and which from their own elements.</summary>
public sealed class AspectSourceFlags : Command
{
    private static readonly string[] ValueWords = ["INDIV", "BNDLD"];

    /// <summary>The words of all types, in the order of their numbers.</summary>
    private static readonly string[] TypeWords =
    [
        "LINETYPEASF", "LINEWIDTHASF", "LINECOLRASF", "MARKERTYPEASF", "MARKERSIZEASF", "MARKERCOLRASF",
        "TEXTFONTASF", "TEXTPRECASF", "CHAREXPASF", "CHARSPACEASF", "TEXTCOLRASF", "INTSTYLEASF", "FILLCOLRASF",
        "HATCHINDEXASF", "PATINDEXASF", "EDGETYPEASF", "EDGEWIDTHASF", "EDGECOLRASF", "ALLEDGE", "ALLFILL",
        "ALLTEXT", "ALLMARKER", "ALLLINE", "ALL",
    ];

    private static readonly ASFType[] Types = Enum.GetValues<ASFType>();

    /// <summary>Creates the element without flags.</summary>
    public AspectSourceFlags()
        : base(ClassCode.AttributeElement, (int)AttributeElement.AspectSourceFlags)
    {
    }

    /// <summary>The attributes that have a flag, and groups of them.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFType
    {
        /// <summary>The dashes of lines.</summary>
        LineType = 0,

        /// <summary>The width of lines.</summary>
        LineWidth = 1,

        /// <summary>The colour of lines.</summary>
        LineColour = 2,

        /// <summary>The shape of markers.</summary>
        MarkerType = 3,

        /// <summary>The size of markers.</summary>
        MarkerSize = 4,

        /// <summary>The colour of markers.</summary>
        MarkerColour = 5,

        /// <summary>The font of texts.</summary>
        TextFontIndex = 6,

        /// <summary>How exactly texts are placed.</summary>
        TextPrecision = 7,

        /// <summary>How wide characters are.</summary>
        CharacterExpansionFactor = 8,

        /// <summary>The gap between characters.</summary>
        CharacterSpacing = 9,

        /// <summary>The colour of texts.</summary>
        TextColour = 10,

        /// <summary>How areas are filled.</summary>
        InteriorStyle = 11,

        /// <summary>The colour of areas.</summary>
        FillColour = 12,

        /// <summary>The hatch of areas.</summary>
        HatchIndex = 13,

        /// <summary>The pattern of areas.</summary>
        PatternIndex = 14,

        /// <summary>The dashes of edges.</summary>
        EdgeType = 15,

        /// <summary>The width of edges.</summary>
        EdgeWidth = 16,

        /// <summary>The colour of edges.</summary>
        EdgeColour = 17,

        /// <summary>All attributes of edges.</summary>
        AllEdge = 506,

        /// <summary>All attributes of areas.</summary>
        AllFill = 507,

        /// <summary>All attributes of texts.</summary>
        AllText = 508,

        /// <summary>All attributes of markers.</summary>
        AllMarker = 509,

        /// <summary>All attributes of lines.</summary>
        AllLine = 510,

        /// <summary>All attributes.</summary>
        All = 511,
    }

    /// <summary>Where an attribute is taken from.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFValue
    {
        /// <summary>From its own element.</summary>
        Individual = 0,

        /// <summary>From the bundle.</summary>
        Bundled = 1,
    }

    /// <summary>Gets or sets the flags.</summary>
    public List<AspectSourceFlagsInfo> Infos { get; set; } = [];

    internal override void Exchange(ParameterExchange x) =>
        Infos = x.Rest(Infos, static (y, info) => ExchangeOne(y, info));

    private static AspectSourceFlagsInfo ExchangeOne(ParameterExchange x, AspectSourceFlagsInfo? info)
    {
        ASFType type = ExchangeType(x, info?.Type ?? default);
        ASFValue value = x.Enumeration(info?.Value ?? default, ValueWords);
        return info ?? new AspectSourceFlagsInfo(type, value);
    }

    private static ASFType ExchangeType(ParameterExchange x, ASFType type)
    {
        if (!x.IsReading)
        {
            Verify(type);
        }

        return x.IsClearText
            ? Types[x.Enumeration(Array.IndexOf(Types, type), TypeWords)]
            : Verify((ASFType)x.BareEnumeration((int)type));
    }

    private static ASFType Verify(ASFType type) =>
        Array.IndexOf(Types, type) >= 0 ? type : throw new CgmDataException($"no attribute has the flag {(int)type}");

    /// <summary>One flag.</summary>
    public sealed class AspectSourceFlagsInfo
    {
        /// <summary>Creates a flag.</summary>
        /// <param name="type">The attribute.</param>
        /// <param name="value">Where it is taken from.</param>
        public AspectSourceFlagsInfo(ASFType type, ASFValue value)
        {
            Type = type;
            Value = value;
        }

        /// <summary>Gets or sets the attribute.</summary>
        public ASFType Type { get; set; }

        /// <summary>Gets or sets where it is taken from.</summary>
        public ASFValue Value { get; set; }
    }
}
