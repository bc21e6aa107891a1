using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>Where metafile, pictures and their parts begin and end.</summary>
public static class DelimiterElements
{
    internal static readonly ElementEntry[] Table =
    [
        new(0, "", static () => new NoOp()),
        new((int)DelimiterElement.BeginMetafile, "BEGMF", static () => new BeginMetafile()),
        new((int)DelimiterElement.EndMetafile, "ENDMF", static () => new EndMetafile()),
        new((int)DelimiterElement.BeginPicture, "BEGPIC", static () => new BeginPicture()),
        new((int)DelimiterElement.BeginPictureBody, "BEGPICBODY", static () => new BeginPictureBody()),
        new((int)DelimiterElement.EndPicture, "ENDPIC", static () => new EndPicture()),
        new((int)DelimiterElement.BeginSegment, "BEGSEG", static () => new BeginSegment()),
        new((int)DelimiterElement.EndSegment, "ENDSEG", static () => new EndSegment()),
        new((int)DelimiterElement.BeginFigure, "BEGFIGURE", static () => new BeginFigure()),
        new((int)DelimiterElement.EndFigure, "ENDFIGURE", static () => new EndFigure()),
        new((int)DelimiterElement.BeginProtectionRegion, "BEGPROTREGION", static () => new BeginProtectionRegion()),
        new((int)DelimiterElement.EndProtectionRegion, "ENDPROTREGION", static () => new EndProtectionRegion()),
        new((int)DelimiterElement.BeginCompoundLine, "BEGCOMPOLINE", static () => new BeginCompoundLine()),
        new((int)DelimiterElement.EndCompoundLine, "ENDCOMPOLINE", static () => new EndCompoundLine()),
        new((int)DelimiterElement.BeginCompoundTextPath, "BEGCOMPOTEXTPATH", static () => new BeginCompoundTextPath()),
        new((int)DelimiterElement.EndCompoundTextPath, "ENDCOMPOTEXTPATH", static () => new EndCompoundTextPath()),
        new((int)DelimiterElement.BeginTileArray, "BEGTILEARRAY", static () => new BeginTileArray()),
        new((int)DelimiterElement.EndTileArray, "ENDTILEARRAY", static () => new EndTileArray()),
        new((int)DelimiterElement.BeginApplicationStructure, "BEGAPS", static () => new BeginApplicationStructure()),
        new((int)DelimiterElement.BeginApplicationStructureBody, "BEGAPSBODY", static () => new BeginApplicationStructureBody()),
        new((int)DelimiterElement.EndApplicationStructure, "ENDAPS", static () => new EndApplicationStructure()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(DelimiterElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(DelimiterElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(DelimiterElement element) =>
        ElementTables.Get(ClassCode.DelimiterElement, element);
}
