using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>How coordinates are coded and what is clipped.</summary>
public static class ControlElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)ControlElement.VdcIntegerPrecision, "VDCINTEGERPREC", static () => new VdcIntegerPrecision()),
        new((int)ControlElement.VdcRealPrecision, "VDCREALPREC", static () => new VdcRealPrecision()),
        new((int)ControlElement.AuxiliaryColour, "AUXCOLR", static () => new AuxiliaryColour()),
        new((int)ControlElement.Transparency, "TRANSPARENCY", static () => new Transparency()),
        new((int)ControlElement.ClipRectangle, "CLIPRECT", static () => new ClipRectangle()),
        new((int)ControlElement.ClipIndicator, "CLIP", static () => new ClipIndicator()),
        new((int)ControlElement.LineClipping, "LINECLIPMODE", static () => new LineClipping()),
        new((int)ControlElement.MarkerClipping, "MARKERCLIPMODE", static () => new MarkerClipping()),
        new((int)ControlElement.EdgeClipping, "EDGECLIPMODE", static () => new EdgeClipping()),
        new((int)ControlElement.NewRegion, "NEWREGION", static () => new NewRegion()),
        new((int)ControlElement.SavePrimitiveContext, "SAVEPRIMCONT", static () => new SavePrimitiveContext()),
        new((int)ControlElement.RestorePrimitiveContext, "RESPRIMCONT", static () => new RestorePrimitiveContext()),
        new((int)ControlElement.ProtectionRegionIndicator, "PROTREGION", static () => new ProtectionRegionIndicator()),
        new((int)ControlElement.GeneralizedTextPathMode, "GENTEXTPATHMODE", static () => new GeneralizedTextPathMode()),
        new((int)ControlElement.MitreLimit, "MITRELIMIT", static () => new MitreLimit()),
        new((int)ControlElement.TransparentCellColour, "TRANSPCELLCOLR", static () => new TransparentCellColour()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(ControlElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(ControlElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(ControlElement element) =>
        ElementTables.Get(ClassCode.ControlElement, element);
}
