using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which attributes are taken from bundles and which from their own elements.</summary>
[CgmCommand(AttributeElement.AspectSourceFlags, "ASF",
    Default = "the element without flags")]
public sealed partial class AspectSourceFlags : Command
{
    /// <summary>The attributes that have a flag, and groups of them.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFType
    {
        /// <summary>The dashes of lines.</summary>
        [CgmKeyword("LINETYPEASF")]
        LineType = 0,

        /// <summary>The width of lines.</summary>
        [CgmKeyword("LINEWIDTHASF")]
        LineWidth = 1,

        /// <summary>The colour of lines.</summary>
        [CgmKeyword("LINECOLRASF")]
        LineColour = 2,

        /// <summary>The shape of markers.</summary>
        [CgmKeyword("MARKERTYPEASF")]
        MarkerType = 3,

        /// <summary>The size of markers.</summary>
        [CgmKeyword("MARKERSIZEASF")]
        MarkerSize = 4,

        /// <summary>The colour of markers.</summary>
        [CgmKeyword("MARKERCOLRASF")]
        MarkerColour = 5,

        /// <summary>The font of texts.</summary>
        [CgmKeyword("TEXTFONTASF")]
        TextFontIndex = 6,

        /// <summary>How exactly texts are placed.</summary>
        [CgmKeyword("TEXTPRECASF")]
        TextPrecision = 7,

        /// <summary>How wide characters are.</summary>
        [CgmKeyword("CHAREXPASF")]
        CharacterExpansionFactor = 8,

        /// <summary>The gap between characters.</summary>
        [CgmKeyword("CHARSPACEASF")]
        CharacterSpacing = 9,

        /// <summary>The colour of texts.</summary>
        [CgmKeyword("TEXTCOLRASF")]
        TextColour = 10,

        /// <summary>How areas are filled.</summary>
        [CgmKeyword("INTSTYLEASF")]
        InteriorStyle = 11,

        /// <summary>The colour of areas.</summary>
        [CgmKeyword("FILLCOLRASF")]
        FillColour = 12,

        /// <summary>The hatch of areas.</summary>
        [CgmKeyword("HATCHINDEXASF")]
        HatchIndex = 13,

        /// <summary>The pattern of areas.</summary>
        [CgmKeyword("PATINDEXASF")]
        PatternIndex = 14,

        /// <summary>The dashes of edges.</summary>
        [CgmKeyword("EDGETYPEASF")]
        EdgeType = 15,

        /// <summary>The width of edges.</summary>
        [CgmKeyword("EDGEWIDTHASF")]
        EdgeWidth = 16,

        /// <summary>The colour of edges.</summary>
        [CgmKeyword("EDGECOLRASF")]
        EdgeColour = 17,

        /// <summary>All attributes of edges.</summary>
        [CgmKeyword("ALLEDGE")]
        AllEdge = 506,

        /// <summary>All attributes of areas.</summary>
        [CgmKeyword("ALLFILL")]
        AllFill = 507,

        /// <summary>All attributes of texts.</summary>
        [CgmKeyword("ALLTEXT")]
        AllText = 508,

        /// <summary>All attributes of markers.</summary>
        [CgmKeyword("ALLMARKER")]
        AllMarker = 509,

        /// <summary>All attributes of lines.</summary>
        [CgmKeyword("ALLLINE")]
        AllLine = 510,

        /// <summary>All attributes.</summary>
        [CgmKeyword("ALL")]
        All = 511,
    }

    /// <summary>Where an attribute is taken from.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFValue
    {
        /// <summary>From its own element.</summary>
        [CgmKeyword("INDIV")]
        Individual = 0,

        /// <summary>From the bundle.</summary>
        [CgmKeyword("BNDLD")]
        Bundled = 1,
    }

    /// <summary>Gets or sets the flags.</summary>
    [CgmCustom]
    public List<AspectSourceFlagsInfo> Infos { get; set; } = [];

    private List<AspectSourceFlagsInfo> ExchangeInfos(ParameterExchange x) =>
        x.Rest(Infos, static (y, info) => AspectSourceFlagsInfo.Exchange(y, info));

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

        /// <inheritdoc/>
        public override string ToString() => CommandText.Of("", Type, Value);

        internal static AspectSourceFlagsInfo Exchange(ParameterExchange x, AspectSourceFlagsInfo? info)
        {
            AspectSourceFlagsInfo one =
                x.IsReading ? new AspectSourceFlagsInfo(default, default) : ParameterExchange.Needed(info);
            one.Type = x.Enumeration(one.Type, EnumKeywords.AspectSourceFlagsASFType);
            one.Value = x.Enumeration(one.Value, EnumKeywords.AspectSourceFlagsASFValue);
            return one;
        }
    }
}
