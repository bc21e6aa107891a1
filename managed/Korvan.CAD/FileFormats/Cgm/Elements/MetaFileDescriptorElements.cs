using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>What holds for the whole metafile.</summary>
public static class MetaFileDescriptorElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)MetaFileDescriptorElement.MetafileVersion, "MFVERSION", static () => new MetafileVersion()),
        new((int)MetaFileDescriptorElement.MetafileDescription, "MFDESC", static () => new MetafileDescription()),
        new((int)MetaFileDescriptorElement.VdcType, "VDCTYPE", static () => new VdcType()),
        new((int)MetaFileDescriptorElement.IntegerPrecision, "INTEGERPREC", static () => new IntegerPrecision()),
        new((int)MetaFileDescriptorElement.RealPrecision, "REALPREC", static () => new RealPrecision()),
        new((int)MetaFileDescriptorElement.IndexPrecision, "INDEXPREC", static () => new IndexPrecision()),
        new((int)MetaFileDescriptorElement.ColourPrecision, "COLRPREC", static () => new ColourPrecision()),
        new((int)MetaFileDescriptorElement.ColourIndexPrecision, "COLRINDEXPREC", static () => new ColourIndexPrecision()),
        new((int)MetaFileDescriptorElement.MaximumColourIndex, "MAXCOLRINDEX", static () => new MaximumColourIndex()),
        new((int)MetaFileDescriptorElement.ColourValueExtent, "COLRVALUEEXT", static () => new ColourValueExtent()),
        new((int)MetaFileDescriptorElement.MetafileElementList, "MFELEMLIST", static () => new MetafileElementList()),
        new((int)MetaFileDescriptorElement.MetafileDefaultsReplacement, "BEGMFDEFAULTS", static () => new MetafileDefaultsReplacement()),
        new((int)MetaFileDescriptorElement.FontList, "FONTLIST", static () => new FontList()),
        new((int)MetaFileDescriptorElement.CharacterSetList, "CHARSETLIST", static () => new CharacterSetList()),
        new((int)MetaFileDescriptorElement.CharacterCodingAnnouncer, "CHARCODING", static () => new CharacterCodingAnnouncer()),
        new((int)MetaFileDescriptorElement.NamePrecision, "NAMEPREC", static () => new NamePrecision()),
        new((int)MetaFileDescriptorElement.MaximumVdcExtent, "MAXVDCEXT", static () => new MaximumVdcExtent()),
        new((int)MetaFileDescriptorElement.SegmentPriorityExtend, "SEGPRIEXT", static () => new SegmentPriorityExtend()),
        new((int)MetaFileDescriptorElement.ColourModel, "COLRMODEL", static () => new ColourModel()),
        new((int)MetaFileDescriptorElement.ColourCalibration, "COLRCALIB", static () => new ColourCalibration()),
        new((int)MetaFileDescriptorElement.FontProperties, "FONTPROP", static () => new FontProperties()),
        new((int)MetaFileDescriptorElement.GlyphMapping, "GLYPHMAP", static () => new GlyphMapping()),
        new((int)MetaFileDescriptorElement.SymbolLibraryList, "SYMBOLLIBLIST", static () => new SymbolLibraryList()),
        new((int)MetaFileDescriptorElement.PictureDirectory, "PICDIR", static () => new PictureDirectory()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(MetaFileDescriptorElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(MetaFileDescriptorElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(MetaFileDescriptorElement element) =>
        ElementTables.Get(ClassCode.MetaFileDescriptorElement, element);
}
