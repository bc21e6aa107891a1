using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The kind of scene.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSceneCaptureType
{
    /// <summary>Any.</summary>
    Standard = 0,

    /// <summary>A landscape.</summary>
    Landscape = 1,

    /// <summary>A portrait.</summary>
    Portrait = 2,

    /// <summary>At night.</summary>
    NightScene = 3,
}
