using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a text is laid out in the room that it has; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringFormatFlags
{
    /// <summary>Lines are read from the right.</summary>
    DirectionRightToLeft = 1,

    /// <summary>Lines run down the page.</summary>
    DirectionVertical = 2,

    /// <summary>No part of a letter reaches outside of the room.</summary>
    FitBlackBox = 4,

    /// <summary>Control characters are shown.</summary>
    DisplayFormatControl = 32,

    /// <summary>Letters that the font lacks are not taken from another font.</summary>
    NoFontFallback = 1024,

    /// <summary>Blanks at the end of a line count to its width.</summary>
    MeasureTrailingSpaces = 2048,

    /// <summary>Lines are not broken.</summary>
    NoWrap = 4096,

    /// <summary>Only whole lines are shown.</summary>
    LineLimit = 8192,

    /// <summary>Letters may reach outside of the room.</summary>
    NoClip = 16384,
}
