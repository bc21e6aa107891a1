using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The program that chose the exposure.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifExposureProgram
{
    /// <summary>Not stated.</summary>
    NotDefined = 0,

    /// <summary>The photographer.</summary>
    Manual = 1,

    /// <summary>The normal program.</summary>
    Auto = 2,

    /// <summary>The aperture was given.</summary>
    AperturePriority = 3,

    /// <summary>The time was given.</summary>
    ShutterPriority = 4,

    /// <summary>For depth of field.</summary>
    Creative = 5,

    /// <summary>For short times.</summary>
    Action = 6,

    /// <summary>For portraits, the background blurred.</summary>
    Portrait = 7,

    /// <summary>For landscapes, the background sharp.</summary>
    Landscape = 8,
}
