using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>What drawn things look like.</summary>
public static class AttributeElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)AttributeElement.LineBundleIndex, "LINEINDEX", static () => new LineBundleIndex()),
        new((int)AttributeElement.LineType, "LINETYPE", static () => new LineType()),
        new((int)AttributeElement.LineWidth, "LINEWIDTH", static () => new LineWidth()),
        new((int)AttributeElement.LineColour, "LINECOLR", static () => new LineColour()),
        new((int)AttributeElement.MarkerBundleIndex, "MARKERINDEX", static () => new MarkerBundleIndex()),
        new((int)AttributeElement.MarkerType, "MARKERTYPE", static () => new MarkerType()),
        new((int)AttributeElement.MarkerSize, "MARKERSIZE", static () => new MarkerSize()),
        new((int)AttributeElement.MarkerColour, "MARKERCOLR", static () => new MarkerColour()),
        new((int)AttributeElement.TextBundleIndex, "TEXTINDEX", static () => new TextBundleIndex()),
        new((int)AttributeElement.TextFontIndex, "TEXTFONTINDEX", static () => new TextFontIndex()),
        new((int)AttributeElement.TextPrecision, "TEXTPREC", static () => new TextPrecision()),
        new((int)AttributeElement.CharacterExpansionFactor, "CHAREXPAN", static () => new CharacterExpansionFactor()),
        new((int)AttributeElement.CharacterSpacing, "CHARSPACE", static () => new CharacterSpacing()),
        new((int)AttributeElement.TextColour, "TEXTCOLR", static () => new TextColour()),
        new((int)AttributeElement.CharacterHeight, "CHARHEIGHT", static () => new CharacterHeight()),
        new((int)AttributeElement.CharacterOrientation, "CHARORI", static () => new CharacterOrientation()),
        new((int)AttributeElement.TextPath, "TEXTPATH", static () => new TextPath()),
        new((int)AttributeElement.TextAlignment, "TEXTALIGN", static () => new TextAlignment()),
        new((int)AttributeElement.CharacterSetIndex, "CHARSETINDEX", static () => new CharacterSetIndex()),
        new((int)AttributeElement.AlternateCharacterSetIndex, "ALTCHARSETINDEX", static () => new AlternateCharacterSetIndex()),
        new((int)AttributeElement.FillBundleIndex, "FILLINDEX", static () => new FillBundleIndex()),
        new((int)AttributeElement.InteriorStyle, "INTSTYLE", static () => new InteriorStyle()),
        new((int)AttributeElement.FillColour, "FILLCOLR", static () => new FillColour()),
        new((int)AttributeElement.HatchIndex, "HATCHINDEX", static () => new HatchIndex()),
        new((int)AttributeElement.PatternIndex, "PATINDEX", static () => new PatternIndex()),
        new((int)AttributeElement.EdgeBundleIndex, "EDGEINDEX", static () => new EdgeBundleIndex()),
        new((int)AttributeElement.EdgeType, "EDGETYPE", static () => new EdgeType()),
        new((int)AttributeElement.EdgeWidth, "EDGEWIDTH", static () => new EdgeWidth()),
        new((int)AttributeElement.EdgeColour, "EDGECOLR", static () => new EdgeColour()),
        new((int)AttributeElement.EdgeVisibility, "EDGEVIS", static () => new EdgeVisibility()),
        new((int)AttributeElement.FillReferencePoint, "FILLREFPT", static () => new FillReferencePoint()),
        new((int)AttributeElement.PatternTable, "PATTABLE", static () => new PatternTable()),
        new((int)AttributeElement.PatternSize, "PATSIZE", static () => new PatternSize()),
        new((int)AttributeElement.ColourTable, "COLRTABLE", static () => new ColourTable()),
        new((int)AttributeElement.AspectSourceFlags, "ASF", static () => new AspectSourceFlags()),
        new((int)AttributeElement.PickIdentifier, "PICKID", static () => new PickIdentifier()),
        new((int)AttributeElement.LineCap, "LINECAP", static () => new Commands.LineCap()),
        new((int)AttributeElement.LineJoin, "LINEJOIN", static () => new LineJoin()),
        new((int)AttributeElement.LineTypeContinuation, "LINETYPECONT", static () => new LineTypeContinuation()),
        new((int)AttributeElement.LineTypeInitialOffset, "LINETYPEINITOFFSET", static () => new LineTypeInitialOffset()),
        new((int)AttributeElement.TextScoreType, "TEXTSCORETYPE", static () => new TextScoreType()),
        new((int)AttributeElement.RestrictedTextType, "RESTRTEXTTYPE", static () => new RestrictedTextType()),
        new((int)AttributeElement.InterpolatedInterior, "INTERPINT", static () => new InterpolatedInterior()),
        new((int)AttributeElement.EdgeCap, "EDGECAP", static () => new EdgeCap()),
        new((int)AttributeElement.EdgeJoin, "EDGEJOIN", static () => new EdgeJoin()),
        new((int)AttributeElement.EdgeTypeContinuation, "EDGETYPECONT", static () => new EdgeTypeContinuation()),
        new((int)AttributeElement.EdgeTypeInitialOffset, "EDGETYPEINITOFFSET", static () => new EdgeTypeInitialOffset()),
        new((int)AttributeElement.SymbolLibraryIndex, "SYMBOLLIBINDEX", static () => new SymbolLibraryIndex()),
        new((int)AttributeElement.SymbolColour, "SYMBOLCOLR", static () => new SymbolColour()),
        new((int)AttributeElement.SymbolSize, "SYMBOLSIZE", static () => new SymbolSize()),
        new((int)AttributeElement.SymbolOrientation, "SYMBOLORI", static () => new SymbolOrientation()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(AttributeElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(AttributeElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(AttributeElement element) =>
        ElementTables.Get(ClassCode.AttributeElement, element);
}
