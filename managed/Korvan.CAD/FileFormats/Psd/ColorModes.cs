using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>The colour mode of a PSD.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorModes
{
    /// <summary>Black and white.</summary>
    Bitmap = 0,

    /// <summary>Lightness.</summary>
    Grayscale = 1,

    /// <summary>Numbers of colours in a palette.</summary>
    Indexed = 2,

    /// <summary>Red, green and blue.</summary>
    Rgb = 3,

    /// <summary>Cyan, magenta, yellow and black.</summary>
    Cmyk = 4,

    /// <summary>Channels of no fixed meaning.</summary>
    Multichannel = 7,

    /// <summary>Lightness, printed with inks of choice.</summary>
    Duotone = 8,

    /// <summary>The colours of CIE L*a*b*.</summary>
    Lab = 9,
}
