using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The layout of text in its layout rectangle; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringFormatFlags
{
    /// <summary>Text is read from right to left.</summary>
    DirectionRightToLeft = 1,

    /// <summary>Lines are vertical.</summary>
    DirectionVertical = 2,

    /// <summary>No part of a glyph is outside of the layout rectangle.</summary>
    FitBlackBox = 4,

    /// <summary>Control characters are shown.</summary>
    DisplayFormatControl = 32,

    /// <summary>Characters that the font lacks are not substituted from another font.</summary>
    NoFontFallback = 1024,

    /// <summary>Trailing spaces are part of the width of a line.</summary>
    MeasureTrailingSpaces = 2048,

    /// <summary>Lines are not wrapped.</summary>
    NoWrap = 4096,

    /// <summary>Only whole lines are shown.</summary>
    LineLimit = 8192,

    /// <summary>Glyphs may extend outside of the layout rectangle.</summary>
    NoClip = 16384,
}
