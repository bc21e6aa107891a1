using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The attribute elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum AttributeElement
{
    /// <summary>The element "line bundle index", in clear text LINEINDEX.</summary>
    LineBundleIndex = 1,

    /// <summary>The element "line type", in clear text LINETYPE.</summary>
    LineType = 2,

    /// <summary>The element "line width", in clear text LINEWIDTH.</summary>
    LineWidth = 3,

    /// <summary>The element "line colour", in clear text LINECOLR.</summary>
    LineColour = 4,

    /// <summary>The element "marker bundle index", in clear text MARKERINDEX.</summary>
    MarkerBundleIndex = 5,

    /// <summary>The element "marker type", in clear text MARKERTYPE.</summary>
    MarkerType = 6,

    /// <summary>The element "marker size", in clear text MARKERSIZE.</summary>
    MarkerSize = 7,

    /// <summary>The element "marker colour", in clear text MARKERCOLR.</summary>
    MarkerColour = 8,

    /// <summary>The element "text bundle index", in clear text TEXTINDEX.</summary>
    TextBundleIndex = 9,

    /// <summary>The element "text font index", in clear text TEXTFONTINDEX.</summary>
    TextFontIndex = 10,

    /// <summary>The element "text precision", in clear text TEXTPREC.</summary>
    TextPrecision = 11,

    /// <summary>The element "character expansion factor", in clear text CHAREXPAN.</summary>
    CharacterExpansionFactor = 12,

    /// <summary>The element "character spacing", in clear text CHARSPACE.</summary>
    CharacterSpacing = 13,

    /// <summary>The element "text colour", in clear text TEXTCOLR.</summary>
    TextColour = 14,

    /// <summary>The element "character height", in clear text CHARHEIGHT.</summary>
    CharacterHeight = 15,

    /// <summary>The element "character orientation", in clear text CHARORI.</summary>
    CharacterOrientation = 16,

    /// <summary>The element "text path", in clear text TEXTPATH.</summary>
    TextPath = 17,

    /// <summary>The element "text alignment", in clear text TEXTALIGN.</summary>
    TextAlignment = 18,

    /// <summary>The element "character set index", in clear text CHARSETINDEX.</summary>
    CharacterSetIndex = 19,

    /// <summary>The element "alternate character set index", in clear text ALTCHARSETINDEX.</summary>
    AlternateCharacterSetIndex = 20,

    /// <summary>The element "fill bundle index", in clear text FILLINDEX.</summary>
    FillBundleIndex = 21,

    /// <summary>The element "interior style", in clear text INTSTYLE.</summary>
    InteriorStyle = 22,

    /// <summary>The element "fill colour", in clear text FILLCOLR.</summary>
    FillColour = 23,

    /// <summary>The element "hatch index", in clear text HATCHINDEX.</summary>
    HatchIndex = 24,

    /// <summary>The element "pattern index", in clear text PATINDEX.</summary>
    PatternIndex = 25,

    /// <summary>The element "edge bundle index", in clear text EDGEINDEX.</summary>
    EdgeBundleIndex = 26,

    /// <summary>The element "edge type", in clear text EDGETYPE.</summary>
    EdgeType = 27,

    /// <summary>The element "edge width", in clear text EDGEWIDTH.</summary>
    EdgeWidth = 28,

    /// <summary>The element "edge colour", in clear text EDGECOLR.</summary>
    EdgeColour = 29,

    /// <summary>The element "edge visibility", in clear text EDGEVIS.</summary>
    EdgeVisibility = 30,

    /// <summary>The element "fill reference point", in clear text FILLREFPT.</summary>
    FillReferencePoint = 31,

    /// <summary>The element "pattern table", in clear text PATTABLE.</summary>
    PatternTable = 32,

    /// <summary>The element "pattern size", in clear text PATSIZE.</summary>
    PatternSize = 33,

    /// <summary>The element "colour table", in clear text COLRTABLE.</summary>
    ColourTable = 34,

    /// <summary>The element "aspect source flags", in clear text ASF.</summary>
    AspectSourceFlags = 35,

    /// <summary>The element "pick identifier", in clear text PICKID.</summary>
    PickIdentifier = 36,

    /// <summary>The element "line cap", in clear text LINECAP.</summary>
    LineCap = 37,

    /// <summary>The element "line join", in clear text LINEJOIN.</summary>
    LineJoin = 38,

    /// <summary>The element "line type continuation", in clear text LINETYPECONT.</summary>
    LineTypeContinuation = 39,

    /// <summary>The element "line type initial offset", in clear text LINETYPEINITOFFSET.</summary>
    LineTypeInitialOffset = 40,

    /// <summary>The element "text score type", in clear text TEXTSCORETYPE.</summary>
    TextScoreType = 41,

    /// <summary>The element "restricted text type", in clear text RESTRTEXTTYPE.</summary>
    RestrictedTextType = 42,

    /// <summary>The element "interpolated interior", in clear text INTERPINT.</summary>
    InterpolatedInterior = 43,

    /// <summary>The element "edge cap", in clear text EDGECAP.</summary>
    EdgeCap = 44,

    /// <summary>The element "edge join", in clear text EDGEJOIN.</summary>
    EdgeJoin = 45,

    /// <summary>The element "edge type continuation", in clear text EDGETYPECONT.</summary>
    EdgeTypeContinuation = 46,

    /// <summary>The element "edge type initial offset", in clear text EDGETYPEINITOFFSET.</summary>
    EdgeTypeInitialOffset = 47,

    /// <summary>The element "symbol library index", in clear text SYMBOLLIBINDEX.</summary>
    SymbolLibraryIndex = 48,

    /// <summary>The element "symbol colour", in clear text SYMBOLCOLR.</summary>
    SymbolColour = 49,

    /// <summary>The element "symbol size", in clear text SYMBOLSIZE.</summary>
    SymbolSize = 50,

    /// <summary>The element "symbol orientation", in clear text SYMBOLORI.</summary>
    SymbolOrientation = 51,
}

/// <summary>The commands and keywords of attribute elements.</summary>
public static partial class AttributeElements;
