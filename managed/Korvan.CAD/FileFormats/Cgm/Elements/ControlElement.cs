using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The control elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ControlElement
{
    /// <summary>The element "vdc integer precision", in clear text VDCINTEGERPREC.</summary>
    VdcIntegerPrecision = 1,

    /// <summary>The element "vdc real precision", in clear text VDCREALPREC.</summary>
    VdcRealPrecision = 2,

    /// <summary>The element "auxiliary colour", in clear text AUXCOLR.</summary>
    AuxiliaryColour = 3,

    /// <summary>The element "transparency", in clear text TRANSPARENCY.</summary>
    Transparency = 4,

    /// <summary>The element "clip rectangle", in clear text CLIPRECT.</summary>
    ClipRectangle = 5,

    /// <summary>The element "clip indicator", in clear text CLIP.</summary>
    ClipIndicator = 6,

    /// <summary>The element "line clipping", in clear text LINECLIPMODE.</summary>
    LineClipping = 7,

    /// <summary>The element "marker clipping", in clear text MARKERCLIPMODE.</summary>
    MarkerClipping = 8,

    /// <summary>The element "edge clipping", in clear text EDGECLIPMODE.</summary>
    EdgeClipping = 9,

    /// <summary>The element "new region", in clear text NEWREGION.</summary>
    NewRegion = 10,

    /// <summary>The element "save primitive context", in clear text SAVEPRIMCONT.</summary>
    SavePrimitiveContext = 11,

    /// <summary>The element "restore primitive context", in clear text RESPRIMCONT.</summary>
    RestorePrimitiveContext = 12,

    /// <summary>The element "protection region indicator", in clear text PROTREGION.</summary>
    ProtectionRegionIndicator = 17,

    /// <summary>The element "generalized text path mode", in clear text GENTEXTPATHMODE.</summary>
    GeneralizedTextPathMode = 18,

    /// <summary>The element "mitre limit", in clear text MITRELIMIT.</summary>
    MitreLimit = 19,

    /// <summary>The element "transparent cell colour", in clear text TRANSPCELLCOLR.</summary>
    TransparentCellColour = 20,
}

/// <summary>The commands and keywords of control elements.</summary>
public static partial class ControlElements;
