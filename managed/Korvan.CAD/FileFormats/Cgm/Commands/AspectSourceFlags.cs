using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which attributes come from bundles and which from their own elements.</summary>
[CgmCommand(AttributeElement.AspectSourceFlags, "ASF", Default = "the element without flags")]
public sealed partial class AspectSourceFlags : Command
{
    /// <summary>The attributes that have an aspect source flag, and groups of them.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFType
    {
        /// <summary>The line type.</summary>
        [CgmKeyword("LINETYPEASF")] LineType = 0,

        /// <summary>The line width.</summary>
        [CgmKeyword("LINEWIDTHASF")] LineWidth = 1,

        /// <summary>The line colour.</summary>
        [CgmKeyword("LINECOLRASF")] LineColour = 2,

        /// <summary>The marker type.</summary>
        [CgmKeyword("MARKERTYPEASF")] MarkerType = 3,

        /// <summary>The marker size.</summary>
        [CgmKeyword("MARKERSIZEASF")] MarkerSize = 4,

        /// <summary>The marker colour.</summary>
        [CgmKeyword("MARKERCOLRASF")] MarkerColour = 5,

        /// <summary>The text font.</summary>
        [CgmKeyword("TEXTFONTASF")] TextFontIndex = 6,

        /// <summary>The text precision.</summary>
        [CgmKeyword("TEXTPRECASF")] TextPrecision = 7,

        /// <summary>The character expansion factor.</summary>
        [CgmKeyword("CHAREXPASF")] CharacterExpansionFactor = 8,

        /// <summary>The character spacing.</summary>
        [CgmKeyword("CHARSPACEASF")] CharacterSpacing = 9,

        /// <summary>The text colour.</summary>
        [CgmKeyword("TEXTCOLRASF")] TextColour = 10,

        /// <summary>The interior style.</summary>
        [CgmKeyword("INTSTYLEASF")] InteriorStyle = 11,

        /// <summary>The fill colour.</summary>
        [CgmKeyword("FILLCOLRASF")] FillColour = 12,

        /// <summary>The hatch index.</summary>
        [CgmKeyword("HATCHINDEXASF")] HatchIndex = 13,

        /// <summary>The pattern index.</summary>
        [CgmKeyword("PATINDEXASF")] PatternIndex = 14,

        /// <summary>The edge type.</summary>
        [CgmKeyword("EDGETYPEASF")] EdgeType = 15,

        /// <summary>The edge width.</summary>
        [CgmKeyword("EDGEWIDTHASF")] EdgeWidth = 16,

        /// <summary>The edge colour.</summary>
        [CgmKeyword("EDGECOLRASF")] EdgeColour = 17,

        /// <summary>All edge attributes.</summary>
        [CgmKeyword("ALLEDGE")] AllEdge = 506,

        /// <summary>All fill attributes.</summary>
        [CgmKeyword("ALLFILL")] AllFill = 507,

        /// <summary>All text attributes.</summary>
        [CgmKeyword("ALLTEXT")] AllText = 508,

        /// <summary>All marker attributes.</summary>
        [CgmKeyword("ALLMARKER")] AllMarker = 509,

        /// <summary>All line attributes.</summary>
        [CgmKeyword("ALLLINE")] AllLine = 510,

        /// <summary>All attributes.</summary>
        [CgmKeyword("ALL")] All = 511,
    }

    /// <summary>The source of an attribute.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ASFValue
    {
        /// <summary>Its own element.</summary>
        [CgmKeyword("INDIV")] Individual = 0,

        /// <summary>The bundle.</summary>
        [CgmKeyword("BNDLD")] Bundled = 1,
    }

    /// <summary>Gets or sets the flags.</summary>
    [CgmCustom]
    public List<AspectSourceFlagsInfo> Infos { get; set; } = [];

    private List<AspectSourceFlagsInfo> ExchangeInfos(ParameterExchange x) =>
        x.Rest(Infos, static (y, info) => AspectSourceFlagsInfo.Exchange(y, info));

    /// <summary>One aspect source flag.</summary>
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

        /// <summary>Gets or sets the source of the attribute.</summary>
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
