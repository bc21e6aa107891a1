using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where the attributes of what a copied segment holds come from.</summary>
public sealed class InheritanceFilter : Command
{
    private static readonly string[] FilterWords =
    [
        "LINEINDEX", "LINETYPE", "LINEWIDTH", "LINECOLR", "LINECLIPMODE", "MARKERINDEX", "MARKERTYPE", "MARKERSIZE",
        "MARKERCOLR", "MARKERCLIPMODE", "TEXTINDEX", "TEXTFONTINDEX", "TEXTPREC", "CHAREXPAN", "CHARSPACE", "TEXTCOLR",
        "CHARHEIGHT", "CHARORI", "TEXTPATH", "TEXTALIGN", "FILLINDEX", "INTSTYLE", "FILLCOLR", "HATCHINDEX", "PATINDEX",
        "EDGEINDEX", "EDGETYPE", "EDGEWIDTH", "EDGECOLR", "EDGEVIS", "EDGECLIPMODE", "FILLREFPT", "PATSIZE", "AUXCOLR",
        "TRANSPARENCY", "LINEATTR", "MARKERATTR", "TEXTPRESANDPLACEATTR", "TEXTPLACEANDORIATTR", "FILLATTR", "EDGEATTR",
        "PATATTR", "OUTPUTCTRL", "PICKID", "ALLATTRCTRL", "ALL", "LINETYPEASF", "LINEWIDTHASF", "LINECOLRASF",
        "MARKERTYPEASF", "MARKERSIZEASF", "MARKERCOLRASF", "TEXTFONTASF", "TEXTPRECASF", "CHAREXPASF", "CHARSPACEASF",
        "TEXTCOLRASF", "INTSTYLEASF", "FILLCOLRASF", "HATCHINDEXASF", "PATINDEXASF", "EDGETYPEASF", "EDGEWIDTHASF",
        "EDGECOLRASF", "LINEASF", "MARKERASF", "TEXTASF", "FILLASF", "EDGEASF", "ALLASF", "MITRELIMIT", "LINECAP",
        "LINEJOIN", "LINETYPECONT", "LINETYPEINITOFFSET", "TEXTSCORETYPE", "RESTRTEXTTYPE", "INTERPINT", "EDGECAP",
        "EDGEJOIN", "EDGETYPECONT", "EDGETYPEINITOFFSET", "SYMBOLLIBINDEX", "SYMBOLCOLR", "SYMBOLSIZE", "SYMBOLORI",
        "SYMBOLATTR",
    ];

    private static readonly string[] SettingWords = ["STLIST", "SEG"];

    private static readonly string[] AllWords = [.. FilterWords, .. SettingWords];

    /// <summary>Creates the element without attributes.</summary>
    public InheritanceFilter()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.InheritanceFilter)
    {
    }

    /// <summary>The attributes that can be chosen, and groups of them.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Filter
    {
        /// <summary>What <see cref="Commands.LineBundleIndex"/> says.</summary>
        LineBundleIndex = 0,

        /// <summary>What <see cref="Commands.LineType"/> says.</summary>
        LineType = 1,

        /// <summary>What <see cref="Commands.LineWidth"/> says.</summary>
        LineWidth = 2,

        /// <summary>What <see cref="Commands.LineColour"/> says.</summary>
        LineColour = 3,

        /// <summary>What <see cref="Commands.LineClipping"/> says.</summary>
        LineClipping = 4,

        /// <summary>What <see cref="Commands.MarkerBundleIndex"/> says.</summary>
        MarkerBundleIndex = 5,

        /// <summary>What <see cref="Commands.MarkerType"/> says.</summary>
        MarkerType = 6,

        /// <summary>What <see cref="Commands.MarkerSize"/> says.</summary>
        MarkerSize = 7,

        /// <summary>What <see cref="Commands.MarkerColour"/> says.</summary>
        MarkerColour = 8,

        /// <summary>What <see cref="Commands.MarkerClipping"/> says.</summary>
        MarkerClipping = 9,

        /// <summary>What <see cref="Commands.TextBundleIndex"/> says.</summary>
        TextBundleIndex = 10,

        /// <summary>What <see cref="Commands.TextFontIndex"/> says.</summary>
        TextFontIndex = 11,

        /// <summary>What <see cref="Commands.TextPrecision"/> says.</summary>
        TextPrecision = 12,

        /// <summary>What <see cref="Commands.CharacterExpansionFactor"/> says.</summary>
        CharacterExpansionFactor = 13,

        /// <summary>What <see cref="Commands.CharacterSpacing"/> says.</summary>
        CharacterSpacing = 14,

        /// <summary>What <see cref="Commands.TextColour"/> says.</summary>
        TextColour = 15,

        /// <summary>What <see cref="Commands.CharacterHeight"/> says.</summary>
        CharacterHeight = 16,

        /// <summary>What <see cref="Commands.CharacterOrientation"/> says.</summary>
        CharacterOrientation = 17,

        /// <summary>What <see cref="Commands.TextPath"/> says.</summary>
        TextPath = 18,

        /// <summary>What <see cref="Commands.TextAlignment"/> says.</summary>
        TextAlignment = 19,

        /// <summary>What <see cref="Commands.FillBundleIndex"/> says.</summary>
        FillBundleIndex = 20,

        /// <summary>What <see cref="Commands.InteriorStyle"/> says.</summary>
        InteriorStyle = 21,

        /// <summary>What <see cref="Commands.FillColour"/> says.</summary>
        FillColour = 22,

        /// <summary>What <see cref="Commands.HatchIndex"/> says.</summary>
        HatchIndex = 23,

        /// <summary>What <see cref="Commands.PatternIndex"/> says.</summary>
        PatternIndex = 24,

        /// <summary>What <see cref="Commands.EdgeBundleIndex"/> says.</summary>
        EdgeBundleIndex = 25,

        /// <summary>What <see cref="Commands.EdgeType"/> says.</summary>
        EdgeType = 26,

        /// <summary>What <see cref="Commands.EdgeWidth"/> says.</summary>
        EdgeWidth = 27,

        /// <summary>What <see cref="Commands.EdgeColour"/> says.</summary>
        EdgeColour = 28,

        /// <summary>What <see cref="Commands.EdgeVisibility"/> says.</summary>
        EdgeVisibility = 29,

        /// <summary>What <see cref="Commands.EdgeClipping"/> says.</summary>
        EdgeClipping = 30,

        /// <summary>What <see cref="Commands.FillReferencePoint"/> says.</summary>
        FillReferencePoint = 31,

        /// <summary>What <see cref="Commands.PatternSize"/> says.</summary>
        PatternSize = 32,

        /// <summary>What <see cref="Commands.AuxiliaryColour"/> says.</summary>
        AuxiliaryColour = 33,

        /// <summary>What <see cref="Commands.Transparency"/> says.</summary>
        Transparency = 34,

        /// <summary>All attributes of lines.</summary>
        LineAttributes = 35,

        /// <summary>All attributes of markers.</summary>
        MarkerAttributes = 36,

        /// <summary>What the characters of texts look like.</summary>
        TextPresentationAndPlacementAttributes = 37,

        /// <summary>Size, direction and place of texts.</summary>
        TextPlacementAndOrientationAttributes = 38,

        /// <summary>All attributes of areas.</summary>
        FillAttributes = 39,

        /// <summary>All attributes of edges.</summary>
        EdgeAttributes = 40,

        /// <summary>All attributes of patterns.</summary>
        PatternAttributes = 41,

        /// <summary>Auxiliary colour and transparency.</summary>
        OutputControl = 42,

        /// <summary>What <see cref="Commands.PickIdentifier"/> says.</summary>
        PickIdentifier = 43,

        /// <summary>All attributes and what controls output.</summary>
        AllAttributesAndControl = 44,

        /// <summary>Everything.</summary>
        All = 45,

        /// <summary>The source flag of <see cref="Commands.LineType"/>.</summary>
        LineTypeAsf = 46,

        /// <summary>The source flag of <see cref="Commands.LineWidth"/>.</summary>
        LineWidthAsf = 47,

        /// <summary>The source flag of <see cref="Commands.LineColour"/>.</summary>
        LineColourAsf = 48,

        /// <summary>The source flag of <see cref="Commands.MarkerType"/>.</summary>
        MarkerTypeAsf = 49,

        /// <summary>The source flag of <see cref="Commands.MarkerSize"/>.</summary>
        MarkerSizeAsf = 50,

        /// <summary>The source flag of <see cref="Commands.MarkerColour"/>.</summary>
        MarkerColourAsf = 51,

        /// <summary>The source flag of <see cref="Commands.TextFontIndex"/>.</summary>
        TextFontIndexAsf = 52,

        /// <summary>The source flag of <see cref="Commands.TextPrecision"/>.</summary>
        TextPrecisionAsf = 53,

        /// <summary>The source flag of <see cref="Commands.CharacterExpansionFactor"/>.</summary>
        CharacterExpansionFactorAsf = 54,

        /// <summary>The source flag of <see cref="Commands.CharacterSpacing"/>.</summary>
        CharacterSpacingAsf = 55,

        /// <summary>The source flag of <see cref="Commands.TextColour"/>.</summary>
        TextColourAsf = 56,

        /// <summary>The source flag of <see cref="Commands.InteriorStyle"/>.</summary>
        InteriorStyleAsf = 57,

        /// <summary>The source flag of <see cref="Commands.FillColour"/>.</summary>
        FillColourAsf = 58,

        /// <summary>The source flag of <see cref="Commands.HatchIndex"/>.</summary>
        HatchIndexAsf = 59,

        /// <summary>The source flag of <see cref="Commands.PatternIndex"/>.</summary>
        PatternIndexAsf = 60,

        /// <summary>The source flag of <see cref="Commands.EdgeType"/>.</summary>
        EdgeTypeAsf = 61,

        /// <summary>The source flag of <see cref="Commands.EdgeWidth"/>.</summary>
        EdgeWidthAsf = 62,

        /// <summary>The source flag of <see cref="Commands.EdgeColour"/>.</summary>
        EdgeColourAsf = 63,

        /// <summary>The source flags of lines.</summary>
        LineAsfs = 64,

        /// <summary>The source flags of markers.</summary>
        MarkerAsfs = 65,

        /// <summary>The source flags of texts.</summary>
        TextAsfs = 66,

        /// <summary>The source flags of areas.</summary>
        FillAsfs = 67,

        /// <summary>The source flags of edges.</summary>
        EdgeAsfs = 68,

        /// <summary>All source flags.</summary>
        AllAsfs = 69,

        /// <summary>What <see cref="Commands.MitreLimit"/> says.</summary>
        MitreLimit = 70,

        /// <summary>What <see cref="Commands.LineCap"/> says.</summary>
        LineCap = 71,

        /// <summary>What <see cref="Commands.LineJoin"/> says.</summary>
        LineJoin = 72,

        /// <summary>What <see cref="Commands.LineTypeContinuation"/> says.</summary>
        LineTypeContinuation = 73,

        /// <summary>What <see cref="Commands.LineTypeInitialOffset"/> says.</summary>
        LineTypeInitialOffset = 74,

        /// <summary>What <see cref="Commands.TextScoreType"/> says.</summary>
        TextScoreType = 75,

        /// <summary>What <see cref="Commands.RestrictedTextType"/> says.</summary>
        RestrictedTextType = 76,

        /// <summary>What <see cref="Commands.InterpolatedInterior"/> says.</summary>
        InterpolatedInterior = 77,

        /// <summary>What <see cref="Commands.EdgeCap"/> says.</summary>
        EdgeCap = 78,

        /// <summary>What <see cref="Commands.EdgeJoin"/> says.</summary>
        EdgeJoin = 79,

        /// <summary>What <see cref="Commands.EdgeTypeContinuation"/> says.</summary>
        EdgeTypeContinuation = 80,

        /// <summary>What <see cref="Commands.EdgeTypeInitialOffset"/> says.</summary>
        EdgeTypeInitialOffset = 81,

        /// <summary>What <see cref="Commands.SymbolLibraryIndex"/> says.</summary>
        SymbolLibraryIndex = 82,

        /// <summary>What <see cref="Commands.SymbolColour"/> says.</summary>
        SymbolColour = 83,

        /// <summary>What <see cref="Commands.SymbolSize"/> says.</summary>
        SymbolSize = 84,

        /// <summary>What <see cref="Commands.SymbolOrientation"/> says.</summary>
        SymbolOrientation = 85,

        /// <summary>All attributes of symbols.</summary>
        SymbolAttributes = 86,
    }

    /// <summary>Gets or sets the attributes.</summary>
    public List<Filter> Filters { get; set; } = [];

    /// <summary>Gets or sets whether they come from the segment; else they come from the place where it is
    /// copied.</summary>
    public bool ComesFromSegment { get; set; } = true;

    internal override void Exchange(ParameterExchange x)
    {
        int setting = ComesFromSegment ? 1 : 0;
        if (!x.IsReading)
        {
            x.Rest(Filters, static (y, filter) => y.Enumeration(filter, FilterWords));
            x.Enumeration(setting, SettingWords);
            return;
        }

        List<int> numbers = x.Rest(new List<int>(), static (y, _) => y.Enumeration(0, AllWords));
        if (numbers.Count == 0)
        {
            throw new CgmDataException("it is not told where the attributes come from");
        }

        Take(numbers, x.IsClearText ? FilterWords.Length : 0);
    }

    /// <summary>Only the end of the element tells which value is the setting; in clear text it has words of its
    /// own.</summary>
    private void Take(List<int> numbers, int firstSetting)
    {
        ComesFromSegment = (numbers[^1] - firstSetting) switch
        {
            0 => false,
            1 => true,
            _ => throw new CgmDataException("it is not told where the attributes come from"),
        };
        numbers.RemoveAt(numbers.Count - 1);
        Filters = numbers.ConvertAll(static number => (Filter)number);
    }
}
