using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Photometric interpretation of samples; the values of tag 262.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPhotometrics
{
    /// <summary>Grayscale, 0 is white.</summary>
    MinIsWhite = 0,

    /// <summary>Grayscale, 0 is black.</summary>
    MinIsBlack = 1,

    /// <summary>RGB.</summary>
    Rgb = 2,

    /// <summary>Palette indices.</summary>
    Palette = 3,

    /// <summary>Transparency mask of another image.</summary>
    Mask = 4,

    /// <summary>Separated: inks, typically cyan, magenta, yellow and black.</summary>
    Separated = 5,

    /// <summary>Y'CbCr: luma and two chroma components.</summary>
    Ycbcr = 6,

    /// <summary>CIE L*a*b*.</summary>
    Cielab = 8,
}
