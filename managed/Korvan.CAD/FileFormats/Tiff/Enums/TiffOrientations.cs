using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Position of row 0 and column 0 in the displayed image; the values of tag 274.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffOrientations
{
    /// <summary>Row 0 is the top, column 0 the left side.</summary>
    TopLeft = 1,

    /// <summary>Row 0 is the top, column 0 the right side.</summary>
    TopRight = 2,

    /// <summary>Row 0 is the bottom, column 0 the right side.</summary>
    BottomRight = 3,

    /// <summary>Row 0 is the bottom, column 0 the left side.</summary>
    BottomLeft = 4,

    /// <summary>Row 0 is the left side, column 0 the top.</summary>
    LeftTop = 5,

    /// <summary>Row 0 is the right side, column 0 the top.</summary>
    RightTop = 6,

    /// <summary>Row 0 is the right side, column 0 the bottom.</summary>
    RightBottom = 7,

    /// <summary>Row 0 is the left side, column 0 the bottom.</summary>
    LeftBottom = 8,
}
