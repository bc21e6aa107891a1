using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The style of a font; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FontStyle
{
    /// <summary>Upright, with regular weight.</summary>
    Regular = 0,

    /// <summary>Bold.</summary>
    Bold = 1,

    /// <summary>Italic or oblique.</summary>
    Italic = 2,

    /// <summary>Underlined.</summary>
    Underline = 4,

    /// <summary>Struck out.</summary>
    Strikeout = 8,
}
