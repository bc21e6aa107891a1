using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>Colour mode of a PSD.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorModes
{
    /// <summary>Black and white.</summary>
    Bitmap = 0,

    /// <summary>Grayscale.</summary>
    Grayscale = 1,

    /// <summary>Palette indices.</summary>
    Indexed = 2,

    /// <summary>RGB.</summary>
    Rgb = 3,

    /// <summary>CMYK.</summary>
    Cmyk = 4,

    /// <summary>Multichannel: channels of no fixed meaning.</summary>
    Multichannel = 7,

    /// <summary>Duotone: grayscale, printed with custom inks.</summary>
    Duotone = 8,

    /// <summary>CIE L*a*b*.</summary>
    Lab = 9,
}
