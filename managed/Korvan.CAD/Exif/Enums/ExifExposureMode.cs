using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Exposure mode.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifExposureMode
{
    /// <summary>Automatic.</summary>
    Auto = 0,

    /// <summary>Manual.</summary>
    Manual = 1,

    /// <summary>Automatic, as one of a bracketed series.</summary>
    AutoBracket = 2,
}
