using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Type of the scene.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSceneCaptureType
{
    /// <summary>Standard.</summary>
    Standard = 0,

    /// <summary>Landscape.</summary>
    Landscape = 1,

    /// <summary>Portrait.</summary>
    Portrait = 2,

    /// <summary>Night scene.</summary>
    NightScene = 3,
}
