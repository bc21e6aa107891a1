using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>How coordinates are coded and what is clipped.</summary>
public static class ControlElements
{
    internal static readonly ElementEntry[] Table =
    [
        // TODO new((int)ControlElement.VdcIntegerPrecision, "VDCINTEGERPREC", static () => new VdcIntegerPrecision()),
        // TODO new((int)ControlElement.VdcRealPrecision, "VDCREALPREC", static () => new VdcRealPrecision()),
        // TODO new((int)ControlElement.AuxiliaryColour, "AUXCOLR", static () => new AuxiliaryColour()),
        // TODO new((int)ControlElement.Transparency, "TRANSPARENCY", static () => new Transparency()),
        // TODO new((int)ControlElement.ClipRectangle, "CLIPRECT", static () => new ClipRectangle()),
        // TODO new((int)ControlElement.ClipIndicator, "CLIP", static () => new ClipIndicator()),
        // TODO new((int)ControlElement.LineClipping, "LINECLIPMODE", static () => new LineClipping()),
        // TODO new((int)ControlElement.MarkerClipping, "MARKERCLIPMODE", static () => new MarkerClipping()),
        // TODO new((int)ControlElement.EdgeClipping, "EDGECLIPMODE", static () => new EdgeClipping()),
        // TODO new((int)ControlElement.NewRegion, "NEWREGION", static () => new NewRegion()),
        // TODO new((int)ControlElement.SavePrimitiveContext, "SAVEPRIMCONT", static () => new SavePrimitiveContext()),
        // TODO new((int)ControlElement.RestorePrimitiveContext, "RESPRIMCONT", static () => new RestorePrimitiveContext()),
        // TODO new((int)ControlElement.ProtectionRegionIndicator, "PROTREGION", static () => new ProtectionRegionIndicator()),
        // TODO new((int)ControlElement.GeneralizedTextPathMode, "GENTEXTPATHMODE", static () => new GeneralizedTextPathMode()),
        // TODO new((int)ControlElement.MitreLimit, "MITRELIMIT", static () => new MitreLimit()),
        // TODO new((int)ControlElement.TransparentCellColour, "TRANSPCELLCOLR", static () => new TransparentCellColour()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(ControlElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(ControlElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(ControlElement element) =>
        ElementTables.Find(ClassCode.ControlElement, (int)element) ?? throw new ArgumentOutOfRangeException(nameof(element));
}
