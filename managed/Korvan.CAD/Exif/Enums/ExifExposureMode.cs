using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Who chose the exposure.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifExposureMode
{
    /// <summary>The camera.</summary>
    Auto = 0,

    /// <summary>The photographer.</summary>
    Manual = 1,

    /// <summary>The camera, in a row of different exposures.</summary>
    AutoBracket = 2,
}
