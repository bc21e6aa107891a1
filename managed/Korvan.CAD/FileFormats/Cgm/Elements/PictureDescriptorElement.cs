using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The picture descriptor elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum PictureDescriptorElement
{
    /// <summary>The element "scaling mode", in clear text SCALEMODE.</summary>
    ScalingMode = 1,

    /// <summary>The element "colour selection mode", in clear text COLRMODE.</summary>
    ColourSelectionMode = 2,

    /// <summary>The element "line width specification mode", in clear text LINEWIDTHMODE.</summary>
    LineWidthSpecificationMode = 3,

    /// <summary>The element "marker size specification mode", in clear text MARKERSIZEMODE.</summary>
    MarkerSizeSpecificationMode = 4,

    /// <summary>The element "edge width specification mode", in clear text EDGEWIDTHMODE.</summary>
    EdgeWidthSpecificationMode = 5,

    /// <summary>The element "vdc extent", in clear text VDCEXT.</summary>
    VdcExtent = 6,

    /// <summary>The element "background colour", in clear text BACKCOLR.</summary>
    BackgroundColour = 7,

    /// <summary>The element "device viewport", in clear text DEVVP.</summary>
    DeviceViewport = 8,

    /// <summary>The element "device viewport specification mode", in clear text DEVVPMODE.</summary>
    DeviceViewportSpecificationMode = 9,

    /// <summary>The element "device viewport mapping", in clear text DEVVPMAP.</summary>
    DeviceViewportMapping = 10,

    /// <summary>The element "line representation", in clear text LINEREP.</summary>
    LineRepresentation = 11,

    /// <summary>The element "marker representation", in clear text MARKERREP.</summary>
    MarkerRepresentation = 12,

    /// <summary>The element "text representation", in clear text TEXTREP.</summary>
    TextRepresentation = 13,

    /// <summary>The element "fill representation", in clear text FILLREP.</summary>
    FillRepresentation = 14,

    /// <summary>The element "edge representation", in clear text EDGEREP.</summary>
    EdgeRepresentation = 15,

    /// <summary>The element "interior style specification mode", in clear text INTSTYLEMODE.</summary>
    InteriorStyleSpecificationMode = 16,

    /// <summary>The element "line and edge type definition", in clear text LINEEDGETYPEDEF.</summary>
    LineAndEdgeTypeDefinition = 17,

    /// <summary>The element "hatch style definition", in clear text HATCHSTYLEDEF.</summary>
    HatchStyleDefinition = 18,

    /// <summary>The element "geometric pattern definition", in clear text GEOPATDEF.</summary>
    GeometricPatternDefinition = 19,

    /// <summary>The element "application structure directory", in clear text APSDIR.</summary>
    ApplicationStructureDirectory = 20,
}

/// <summary>The commands and keywords of picture descriptor elements.</summary>
public static partial class PictureDescriptorElements;
