using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>What drawn things look like.</summary>
public static class AttributeElements
{
    internal static readonly ElementEntry[] Table =
    [
        // TODO new((int)AttributeElement.LineBundleIndex, "LINEINDEX", static () => new LineBundleIndex()),
        // TODO new((int)AttributeElement.LineType, "LINETYPE", static () => new LineType()),
        new((int)AttributeElement.LineWidth, "LINEWIDTH", static () => new LineWidth()),
        // TODO new((int)AttributeElement.LineColour, "LINECOLR", static () => new LineColour()),
        // TODO new((int)AttributeElement.MarkerBundleIndex, "MARKERINDEX", static () => new MarkerBundleIndex()),
        // TODO new((int)AttributeElement.MarkerType, "MARKERTYPE", static () => new MarkerType()),
        // TODO new((int)AttributeElement.MarkerSize, "MARKERSIZE", static () => new MarkerSize()),
        // TODO new((int)AttributeElement.MarkerColour, "MARKERCOLR", static () => new MarkerColour()),
        // TODO new((int)AttributeElement.TextBundleIndex, "TEXTINDEX", static () => new TextBundleIndex()),
        // TODO new((int)AttributeElement.TextFontIndex, "TEXTFONTINDEX", static () => new TextFontIndex()),
        // TODO new((int)AttributeElement.TextPrecision, "TEXTPREC", static () => new TextPrecision()),
        // TODO new((int)AttributeElement.CharacterExpansionFactor, "CHAREXPAN", static () => new CharacterExpansionFactor()),
        // TODO new((int)AttributeElement.CharacterSpacing, "CHARSPACE", static () => new CharacterSpacing()),
        // TODO new((int)AttributeElement.TextColour, "TEXTCOLR", static () => new TextColour()),
        // TODO new((int)AttributeElement.CharacterHeight, "CHARHEIGHT", static () => new CharacterHeight()),
        // TODO new((int)AttributeElement.CharacterOrientation, "CHARORI", static () => new CharacterOrientation()),
        // TODO new((int)AttributeElement.TextPath, "TEXTPATH", static () => new TextPath()),
        // TODO new((int)AttributeElement.TextAlignment, "TEXTALIGN", static () => new TextAlignment()),
        // TODO new((int)AttributeElement.CharacterSetIndex, "CHARSETINDEX", static () => new CharacterSetIndex()),
        // TODO new((int)AttributeElement.AlternateCharacterSetIndex, "ALTCHARSETINDEX", static () => new AlternateCharacterSetIndex()),
        // TODO new((int)AttributeElement.FillBundleIndex, "FILLINDEX", static () => new FillBundleIndex()),
        // TODO new((int)AttributeElement.InteriorStyle, "INTSTYLE", static () => new InteriorStyle()),
        // TODO new((int)AttributeElement.FillColour, "FILLCOLR", static () => new FillColour()),
        // TODO new((int)AttributeElement.HatchIndex, "HATCHINDEX", static () => new HatchIndex()),
        // TODO new((int)AttributeElement.PatternIndex, "PATINDEX", static () => new PatternIndex()),
        // TODO new((int)AttributeElement.EdgeBundleIndex, "EDGEINDEX", static () => new EdgeBundleIndex()),
        // TODO new((int)AttributeElement.EdgeType, "EDGETYPE", static () => new EdgeType()),
        // TODO new((int)AttributeElement.EdgeWidth, "EDGEWIDTH", static () => new EdgeWidth()),
        // TODO new((int)AttributeElement.EdgeColour, "EDGECOLR", static () => new EdgeColour()),
        // TODO new((int)AttributeElement.EdgeVisibility, "EDGEVIS", static () => new EdgeVisibility()),
        // TODO new((int)AttributeElement.FillReferencePoint, "FILLREFPT", static () => new FillReferencePoint()),
        // TODO new((int)AttributeElement.PatternTable, "PATTABLE", static () => new PatternTable()),
        // TODO new((int)AttributeElement.PatternSize, "PATSIZE", static () => new PatternSize()),
        // TODO new((int)AttributeElement.ColourTable, "COLRTABLE", static () => new ColourTable()),
        // TODO new((int)AttributeElement.AspectSourceFlags, "ASF", static () => new AspectSourceFlags()),
        // TODO new((int)AttributeElement.PickIdentifier, "PICKID", static () => new PickIdentifier()),
        // TODO new((int)AttributeElement.LineCap, "LINECAP", static () => new LineCap()),
        // TODO new((int)AttributeElement.LineJoin, "LINEJOIN", static () => new LineJoin()),
        // TODO new((int)AttributeElement.LineTypeContinuation, "LINETYPECONT", static () => new LineTypeContinuation()),
        // TODO new((int)AttributeElement.LineTypeInitialOffset, "LINETYPEINITOFFSET", static () => new LineTypeInitialOffset()),
        // TODO new((int)AttributeElement.TextScoreType, "TEXTSCORETYPE", static () => new TextScoreType()),
        // TODO new((int)AttributeElement.RestrictedTextType, "RESTRTEXTTYPE", static () => new RestrictedTextType()),
        // TODO new((int)AttributeElement.InterpolatedInterior, "INTERPINT", static () => new InterpolatedInterior()),
        // TODO new((int)AttributeElement.EdgeCap, "EDGECAP", static () => new EdgeCap()),
        // TODO new((int)AttributeElement.EdgeJoin, "EDGEJOIN", static () => new EdgeJoin()),
        // TODO new((int)AttributeElement.EdgeTypeContinuation, "EDGETYPECONT", static () => new EdgeTypeContinuation()),
        // TODO new((int)AttributeElement.EdgeTypeInitialOffset, "EDGETYPEINITOFFSET", static () => new EdgeTypeInitialOffset()),
        // TODO new((int)AttributeElement.SymbolLibraryIndex, "SYMBOLLIBINDEX", static () => new SymbolLibraryIndex()),
        // TODO new((int)AttributeElement.SymbolColour, "SYMBOLCOLR", static () => new SymbolColour()),
        // TODO new((int)AttributeElement.SymbolSize, "SYMBOLSIZE", static () => new SymbolSize()),
        // TODO new((int)AttributeElement.SymbolOrientation, "SYMBOLORI", static () => new SymbolOrientation()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(AttributeElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(AttributeElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(AttributeElement element) =>
        ElementTables.Find(ClassCode.AttributeElement, (int)element) ?? throw new ArgumentOutOfRangeException(nameof(element));
}
