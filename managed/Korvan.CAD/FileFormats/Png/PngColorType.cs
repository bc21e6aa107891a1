using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Png;

/// <summary>Colour type of a PNG (ISO/IEC 15948).</summary>
[PythonEnum(EnumKind.Integer)]
public enum PngColorType
{
    /// <summary>Grayscale.</summary>
    Grayscale = 0,

    /// <summary>RGB.</summary>
    Truecolor = 2,

    /// <summary>Palette indices.</summary>
    IndexedColor = 3,

    /// <summary>Grayscale with alpha.</summary>
    GrayscaleWithAlpha = 4,

    /// <summary>RGB with alpha.</summary>
    TruecolorWithAlpha = 6,
}
