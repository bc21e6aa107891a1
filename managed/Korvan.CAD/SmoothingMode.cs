using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How edges of shapes are smoothed.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SmoothingMode
{
    /// <summary>As the device does by itself.</summary>
    Default = 0,

    /// <summary>Without smoothing.</summary>
    HighSpeed = 1,

    /// <summary>With smoothing.</summary>
    HighQuality = 2,

    /// <summary>Without smoothing.</summary>
    None = 3,

    /// <summary>With smoothing.</summary>
    AntiAlias = 4,
}
