using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Exposure program of the camera.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifExposureProgram
{
    /// <summary>Not stated.</summary>
    NotDefined = 0,

    /// <summary>Manual.</summary>
    Manual = 1,

    /// <summary>Normal program.</summary>
    Auto = 2,

    /// <summary>Aperture priority.</summary>
    AperturePriority = 3,

    /// <summary>Shutter priority.</summary>
    ShutterPriority = 4,

    /// <summary>Creative program, biased toward depth of field.</summary>
    Creative = 5,

    /// <summary>Action program, biased toward fast shutter speed.</summary>
    Action = 6,

    /// <summary>Portrait mode, with the background out of focus.</summary>
    Portrait = 7,

    /// <summary>Landscape mode, with the background in focus.</summary>
    Landscape = 8,
}
