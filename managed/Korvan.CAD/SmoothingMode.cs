using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Antialiasing of shapes.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SmoothingMode
{
    /// <summary>The default of the device.</summary>
    Default = 0,

    /// <summary>No antialiasing.</summary>
    HighSpeed = 1,

    /// <summary>Antialiasing.</summary>
    HighQuality = 2,

    /// <summary>No antialiasing.</summary>
    None = 3,

    /// <summary>Antialiasing.</summary>
    AntiAlias = 4,
}
