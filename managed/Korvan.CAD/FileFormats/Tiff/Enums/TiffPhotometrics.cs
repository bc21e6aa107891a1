using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>What samples mean; the values of tag 262.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPhotometrics
{
    /// <summary>Lightness, 0 is white.</summary>
    MinIsWhite = 0,

    /// <summary>Lightness, 0 is black.</summary>
    MinIsBlack = 1,

    /// <summary>Red, green and blue.</summary>
    Rgb = 2,

    /// <summary>Numbers of colours in a palette.</summary>
    Palette = 3,

    /// <summary>Where another picture is to be seen.</summary>
    Mask = 4,

    /// <summary>Inks, usually cyan, magenta, yellow and black.</summary>
    Separated = 5,

    /// <summary>Lightness and two differences of colour.</summary>
    Ycbcr = 6,

    /// <summary>CIE L*a*b*.</summary>
    Cielab = 8,
}
