using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>What holds for a whole picture.</summary>
public static class PictureDescriptorElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)PictureDescriptorElement.ScalingMode, "SCALEMODE", static () => new ScalingMode()),
        new((int)PictureDescriptorElement.ColourSelectionMode, "COLRMODE", static () => new ColourSelectionMode()),
        new((int)PictureDescriptorElement.LineWidthSpecificationMode, "LINEWIDTHMODE", static () => new LineWidthSpecificationMode()),
        new((int)PictureDescriptorElement.MarkerSizeSpecificationMode, "MARKERSIZEMODE", static () => new MarkerSizeSpecificationMode()),
        new((int)PictureDescriptorElement.EdgeWidthSpecificationMode, "EDGEWIDTHMODE", static () => new EdgeWidthSpecificationMode()),
        new((int)PictureDescriptorElement.VdcExtent, "VDCEXT", static () => new VdcExtent()),
        new((int)PictureDescriptorElement.BackgroundColour, "BACKCOLR", static () => new BackgroundColour()),
        new((int)PictureDescriptorElement.DeviceViewport, "DEVVP", static () => new DeviceViewport()),
        new((int)PictureDescriptorElement.DeviceViewportSpecificationMode, "DEVVPMODE", static () => new DeviceViewportSpecificationMode()),
        new((int)PictureDescriptorElement.DeviceViewportMapping, "DEVVPMAP", static () => new DeviceViewportMapping()),
        new((int)PictureDescriptorElement.LineRepresentation, "LINEREP", static () => new LineRepresentation()),
        new((int)PictureDescriptorElement.MarkerRepresentation, "MARKERREP", static () => new MarkerRepresentation()),
        new((int)PictureDescriptorElement.TextRepresentation, "TEXTREP", static () => new TextRepresentation()),
        new((int)PictureDescriptorElement.FillRepresentation, "FILLREP", static () => new FillRepresentation()),
        new((int)PictureDescriptorElement.EdgeRepresentation, "EDGEREP", static () => new EdgeRepresentation()),
        new((int)PictureDescriptorElement.InteriorStyleSpecificationMode, "INTSTYLEMODE", static () => new InteriorStyleSpecificationMode()),
        new((int)PictureDescriptorElement.LineAndEdgeTypeDefinition, "LINEEDGETYPEDEF", static () => new LineAndEdgeTypeDefinition()),
        new((int)PictureDescriptorElement.HatchStyleDefinition, "HATCHSTYLEDEF", static () => new HatchStyleDefinition()),
        new((int)PictureDescriptorElement.GeometricPatternDefinition, "GEOPATDEF", static () => new GeometricPatternDefinition()),
        new((int)PictureDescriptorElement.ApplicationStructureDirectory, "APSDIR", static () => new ApplicationStructureDirectory()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(PictureDescriptorElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(PictureDescriptorElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(PictureDescriptorElement element) =>
        ElementTables.Get(ClassCode.PictureDescriptorElement, element);
}
