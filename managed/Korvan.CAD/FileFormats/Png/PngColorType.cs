using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Png;

/// <summary>What the pixels of a PNG store (ISO/IEC 15948).</summary>
[PythonEnum(EnumKind.Integer)]
public enum PngColorType
{
    /// <summary>Lightness.</summary>
    Grayscale = 0,

    /// <summary>Red, green and blue.</summary>
    Truecolor = 2,

    /// <summary>Numbers of colours in a palette.</summary>
    IndexedColor = 3,

    /// <summary>Lightness and opacity.</summary>
    GrayscaleWithAlpha = 4,

    /// <summary>Red, green, blue and opacity.</summary>
    TruecolorWithAlpha = 6,
}
