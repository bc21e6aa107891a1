using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which attributes a copied segment takes from itself and which from where it is copied.</summary>
[CgmCommand(SegmentControlElement.InheritanceFilter, "INHFILTER", Default = "the element without attributes")]
public sealed partial class InheritanceFilter : Command
{
    private const int FirstSetting = (int)Filter.SymbolAttributes + 1;

    private static readonly KeywordTable Settings = new([0, 1], ["STLIST", "SEG"]);

    // Only the end of the element tells which value is the setting. Binary files number it from 0; clear text has
    // keywords for it, which follow those of the filters here.
    private static readonly KeywordTable FiltersAndSettings = new(
        [.. Enumerable.Range(0, FirstSetting + 2)],
        [.. EnumKeywords.InheritanceFilterFilter.Keywords, .. Settings.Keywords]);

    /// <summary>The attributes that can be selected, and groups of them.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Filter
    {
        /// <summary>What <see cref="Commands.LineBundleIndex"/> says.</summary>
        [CgmKeyword("LINEINDEX")] LineBundleIndex = 0,

        /// <summary>What <see cref="Commands.LineType"/> says.</summary>
        [CgmKeyword("LINETYPE")] LineType = 1,

        /// <summary>What <see cref="Commands.LineWidth"/> says.</summary>
        [CgmKeyword("LINEWIDTH")] LineWidth = 2,

        /// <summary>What <see cref="Commands.LineColour"/> says.</summary>
        [CgmKeyword("LINECOLR")] LineColour = 3,

        /// <summary>What <see cref="Commands.LineClipping"/> says.</summary>
        [CgmKeyword("LINECLIPMODE")] LineClipping = 4,

        /// <summary>What <see cref="Commands.MarkerBundleIndex"/> says.</summary>
        [CgmKeyword("MARKERINDEX")] MarkerBundleIndex = 5,

        /// <summary>What <see cref="Commands.MarkerType"/> says.</summary>
        [CgmKeyword("MARKERTYPE")] MarkerType = 6,

        /// <summary>What <see cref="Commands.MarkerSize"/> says.</summary>
        [CgmKeyword("MARKERSIZE")] MarkerSize = 7,

        /// <summary>What <see cref="Commands.MarkerColour"/> says.</summary>
        [CgmKeyword("MARKERCOLR")] MarkerColour = 8,

        /// <summary>What <see cref="Commands.MarkerClipping"/> says.</summary>
        [CgmKeyword("MARKERCLIPMODE")] MarkerClipping = 9,

        /// <summary>What <see cref="Commands.TextBundleIndex"/> says.</summary>
        [CgmKeyword("TEXTINDEX")] TextBundleIndex = 10,

        /// <summary>What <see cref="Commands.TextFontIndex"/> says.</summary>
        [CgmKeyword("TEXTFONTINDEX")] TextFontIndex = 11,

        /// <summary>What <see cref="Commands.TextPrecision"/> says.</summary>
        [CgmKeyword("TEXTPREC")] TextPrecision = 12,

        /// <summary>What <see cref="Commands.CharacterExpansionFactor"/> says.</summary>
        [CgmKeyword("CHAREXPAN")] CharacterExpansionFactor = 13,

        /// <summary>What <see cref="Commands.CharacterSpacing"/> says.</summary>
        [CgmKeyword("CHARSPACE")] CharacterSpacing = 14,

        /// <summary>What <see cref="Commands.TextColour"/> says.</summary>
        [CgmKeyword("TEXTCOLR")] TextColour = 15,

        /// <summary>What <see cref="Commands.CharacterHeight"/> says.</summary>
        [CgmKeyword("CHARHEIGHT")] CharacterHeight = 16,

        /// <summary>What <see cref="Commands.CharacterOrientation"/> says.</summary>
        [CgmKeyword("CHARORI")] CharacterOrientation = 17,

        /// <summary>What <see cref="Commands.TextPath"/> says.</summary>
        [CgmKeyword("TEXTPATH")] TextPath = 18,

        /// <summary>What <see cref="Commands.TextAlignment"/> says.</summary>
        [CgmKeyword("TEXTALIGN")] TextAlignment = 19,

        /// <summary>What <see cref="Commands.FillBundleIndex"/> says.</summary>
        [CgmKeyword("FILLINDEX")] FillBundleIndex = 20,

        /// <summary>What <see cref="Commands.InteriorStyle"/> says.</summary>
        [CgmKeyword("INTSTYLE")] InteriorStyle = 21,

        /// <summary>What <see cref="Commands.FillColour"/> says.</summary>
        [CgmKeyword("FILLCOLR")] FillColour = 22,

        /// <summary>What <see cref="Commands.HatchIndex"/> says.</summary>
        [CgmKeyword("HATCHINDEX")] HatchIndex = 23,

        /// <summary>What <see cref="Commands.PatternIndex"/> says.</summary>
        [CgmKeyword("PATINDEX")] PatternIndex = 24,

        /// <summary>What <see cref="Commands.EdgeBundleIndex"/> says.</summary>
        [CgmKeyword("EDGEINDEX")] EdgeBundleIndex = 25,

        /// <summary>What <see cref="Commands.EdgeType"/> says.</summary>
        [CgmKeyword("EDGETYPE")] EdgeType = 26,

        /// <summary>What <see cref="Commands.EdgeWidth"/> says.</summary>
        [CgmKeyword("EDGEWIDTH")] EdgeWidth = 27,

        /// <summary>What <see cref="Commands.EdgeColour"/> says.</summary>
        [CgmKeyword("EDGECOLR")] EdgeColour = 28,

        /// <summary>What <see cref="Commands.EdgeVisibility"/> says.</summary>
        [CgmKeyword("EDGEVIS")] EdgeVisibility = 29,

        /// <summary>What <see cref="Commands.EdgeClipping"/> says.</summary>
        [CgmKeyword("EDGECLIPMODE")] EdgeClipping = 30,

        /// <summary>What <see cref="Commands.FillReferencePoint"/> says.</summary>
        [CgmKeyword("FILLREFPT")] FillReferencePoint = 31,

        /// <summary>What <see cref="Commands.PatternSize"/> says.</summary>
        [CgmKeyword("PATSIZE")] PatternSize = 32,

        /// <summary>What <see cref="Commands.AuxiliaryColour"/> says.</summary>
        [CgmKeyword("AUXCOLR")] AuxiliaryColour = 33,

        /// <summary>What <see cref="Commands.Transparency"/> says.</summary>
        [CgmKeyword("TRANSPARENCY")] Transparency = 34,

        /// <summary>All line attributes.</summary>
        [CgmKeyword("LINEATTR")] LineAttributes = 35,

        /// <summary>All marker attributes.</summary>
        [CgmKeyword("MARKERATTR")] MarkerAttributes = 36,

        /// <summary>Text presentation and placement attributes.</summary>
        [CgmKeyword("TEXTPRESANDPLACEATTR")] TextPresentationAndPlacementAttributes = 37,

        /// <summary>Text placement and orientation attributes.</summary>
        [CgmKeyword("TEXTPLACEANDORIATTR")] TextPlacementAndOrientationAttributes = 38,

        /// <summary>All fill attributes.</summary>
        [CgmKeyword("FILLATTR")] FillAttributes = 39,

        /// <summary>All edge attributes.</summary>
        [CgmKeyword("EDGEATTR")] EdgeAttributes = 40,

        /// <summary>All pattern attributes.</summary>
        [CgmKeyword("PATATTR")] PatternAttributes = 41,

        /// <summary>Auxiliary colour and transparency.</summary>
        [CgmKeyword("OUTPUTCTRL")] OutputControl = 42,

        /// <summary>What <see cref="Commands.PickIdentifier"/> says.</summary>
        [CgmKeyword("PICKID")] PickIdentifier = 43,

        /// <summary>All attributes and output control.</summary>
        [CgmKeyword("ALLATTRCTRL")] AllAttributesAndControl = 44,

        /// <summary>Everything.</summary>
        [CgmKeyword("ALL")] All = 45,

        /// <summary>The source flag of <see cref="Commands.LineType"/>.</summary>
        [CgmKeyword("LINETYPEASF")] LineTypeAsf = 46,

        /// <summary>The source flag of <see cref="Commands.LineWidth"/>.</summary>
        [CgmKeyword("LINEWIDTHASF")] LineWidthAsf = 47,

        /// <summary>The source flag of <see cref="Commands.LineColour"/>.</summary>
        [CgmKeyword("LINECOLRASF")] LineColourAsf = 48,

        /// <summary>The source flag of <see cref="Commands.MarkerType"/>.</summary>
        [CgmKeyword("MARKERTYPEASF")] MarkerTypeAsf = 49,

        /// <summary>The source flag of <see cref="Commands.MarkerSize"/>.</summary>
        [CgmKeyword("MARKERSIZEASF")] MarkerSizeAsf = 50,

        /// <summary>The source flag of <see cref="Commands.MarkerColour"/>.</summary>
        [CgmKeyword("MARKERCOLRASF")] MarkerColourAsf = 51,

        /// <summary>The source flag of <see cref="Commands.TextFontIndex"/>.</summary>
        [CgmKeyword("TEXTFONTASF")] TextFontIndexAsf = 52,

        /// <summary>The source flag of <see cref="Commands.TextPrecision"/>.</summary>
        [CgmKeyword("TEXTPRECASF")] TextPrecisionAsf = 53,

        /// <summary>The source flag of <see cref="Commands.CharacterExpansionFactor"/>.</summary>
        [CgmKeyword("CHAREXPASF")] CharacterExpansionFactorAsf = 54,

        /// <summary>The source flag of <see cref="Commands.CharacterSpacing"/>.</summary>
        [CgmKeyword("CHARSPACEASF")] CharacterSpacingAsf = 55,

        /// <summary>The source flag of <see cref="Commands.TextColour"/>.</summary>
        [CgmKeyword("TEXTCOLRASF")] TextColourAsf = 56,

        /// <summary>The source flag of <see cref="Commands.InteriorStyle"/>.</summary>
        [CgmKeyword("INTSTYLEASF")] InteriorStyleAsf = 57,

        /// <summary>The source flag of <see cref="Commands.FillColour"/>.</summary>
        [CgmKeyword("FILLCOLRASF")] FillColourAsf = 58,

        /// <summary>The source flag of <see cref="Commands.HatchIndex"/>.</summary>
        [CgmKeyword("HATCHINDEXASF")] HatchIndexAsf = 59,

        /// <summary>The source flag of <see cref="Commands.PatternIndex"/>.</summary>
        [CgmKeyword("PATINDEXASF")] PatternIndexAsf = 60,

        /// <summary>The source flag of <see cref="Commands.EdgeType"/>.</summary>
        [CgmKeyword("EDGETYPEASF")] EdgeTypeAsf = 61,

        /// <summary>The source flag of <see cref="Commands.EdgeWidth"/>.</summary>
        [CgmKeyword("EDGEWIDTHASF")] EdgeWidthAsf = 62,

        /// <summary>The source flag of <see cref="Commands.EdgeColour"/>.</summary>
        [CgmKeyword("EDGECOLRASF")] EdgeColourAsf = 63,

        /// <summary>The aspect source flags of lines.</summary>
        [CgmKeyword("LINEASF")] LineAsfs = 64,

        /// <summary>The aspect source flags of markers.</summary>
        [CgmKeyword("MARKERASF")] MarkerAsfs = 65,

        /// <summary>The aspect source flags of text.</summary>
        [CgmKeyword("TEXTASF")] TextAsfs = 66,

        /// <summary>The aspect source flags of fills.</summary>
        [CgmKeyword("FILLASF")] FillAsfs = 67,

        /// <summary>The aspect source flags of edges.</summary>
        [CgmKeyword("EDGEASF")] EdgeAsfs = 68,

        /// <summary>All aspect source flags.</summary>
        [CgmKeyword("ALLASF")] AllAsfs = 69,

        /// <summary>What <see cref="Commands.MitreLimit"/> says.</summary>
        [CgmKeyword("MITRELIMIT")] MitreLimit = 70,

        /// <summary>What <see cref="Commands.LineCap"/> says.</summary>
        [CgmKeyword("LINECAP")] LineCap = 71,

        /// <summary>What <see cref="Commands.LineJoin"/> says.</summary>
        [CgmKeyword("LINEJOIN")] LineJoin = 72,

        /// <summary>What <see cref="Commands.LineTypeContinuation"/> says.</summary>
        [CgmKeyword("LINETYPECONT")] LineTypeContinuation = 73,

        /// <summary>What <see cref="Commands.LineTypeInitialOffset"/> says.</summary>
        [CgmKeyword("LINETYPEINITOFFSET")] LineTypeInitialOffset = 74,

        /// <summary>What <see cref="Commands.TextScoreType"/> says.</summary>
        [CgmKeyword("TEXTSCORETYPE")] TextScoreType = 75,

        /// <summary>What <see cref="Commands.RestrictedTextType"/> says.</summary>
        [CgmKeyword("RESTRTEXTTYPE")] RestrictedTextType = 76,

        /// <summary>What <see cref="Commands.InterpolatedInterior"/> says.</summary>
        [CgmKeyword("INTERPINT")] InterpolatedInterior = 77,

        /// <summary>What <see cref="Commands.EdgeCap"/> says.</summary>
        [CgmKeyword("EDGECAP")] EdgeCap = 78,

        /// <summary>What <see cref="Commands.EdgeJoin"/> says.</summary>
        [CgmKeyword("EDGEJOIN")] EdgeJoin = 79,

        /// <summary>What <see cref="Commands.EdgeTypeContinuation"/> says.</summary>
        [CgmKeyword("EDGETYPECONT")] EdgeTypeContinuation = 80,

        /// <summary>What <see cref="Commands.EdgeTypeInitialOffset"/> says.</summary>
        [CgmKeyword("EDGETYPEINITOFFSET")] EdgeTypeInitialOffset = 81,

        /// <summary>What <see cref="Commands.SymbolLibraryIndex"/> says.</summary>
        [CgmKeyword("SYMBOLLIBINDEX")] SymbolLibraryIndex = 82,

        /// <summary>What <see cref="Commands.SymbolColour"/> says.</summary>
        [CgmKeyword("SYMBOLCOLR")] SymbolColour = 83,

        /// <summary>What <see cref="Commands.SymbolSize"/> says.</summary>
        [CgmKeyword("SYMBOLSIZE")] SymbolSize = 84,

        /// <summary>What <see cref="Commands.SymbolOrientation"/> says.</summary>
        [CgmKeyword("SYMBOLORI")] SymbolOrientation = 85,

        /// <summary>All symbol attributes.</summary>
        [CgmKeyword("SYMBOLATTR")] SymbolAttributes = 86,
    }

    /// <summary>Gets or sets the selected attributes.</summary>
    public List<Filter> Filters { get; set; } = [];

    /// <summary>Gets or sets whether the selected attributes come from the segment, or else from the place where it is
    /// copied.</summary>
    public bool ComesFromSegment { get; set; } = true;

    internal override void Exchange(ParameterExchange x)
    {
        if (!x.IsReading)
        {
            x.Rest(Filters, static (y, filter) => y.Enumeration(filter, EnumKeywords.InheritanceFilterFilter));
            x.Enumeration(ComesFromSegment ? 1 : 0, Settings);
            return;
        }

        List<int> values = x.Rest(new List<int>(), static (y, _) => y.Enumeration(0, FiltersAndSettings));
        int setting = values.Count > 0 ? values[^1] - (x.IsClearText ? FirstSetting : 0) : -1;
        if (setting is not (0 or 1))
        {
            throw new CgmDataException("the selection setting is missing: STLIST or SEG");
        }

        ComesFromSegment = setting == 1;
        Filters = values[..^1].ConvertAll(static value => (Filter)value);
    }
}
