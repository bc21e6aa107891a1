using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How letters look; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FontStyle
{
    /// <summary>Upright and of usual weight.</summary>
    Regular = 0,

    /// <summary>Heavy.</summary>
    Bold = 1,

    /// <summary>Slanted.</summary>
    Italic = 2,

    /// <summary>With a line below.</summary>
    Underline = 4,

    /// <summary>With a line through the middle.</summary>
    Strikeout = 8,
}
