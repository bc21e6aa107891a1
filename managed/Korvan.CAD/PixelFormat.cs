using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The meaning of the channels of a pixel.</summary>
[PythonEnum(EnumKind.Flag)]
public enum PixelFormat : long
{
    /// <summary>Not known.</summary>
    Undefined = 0,

    /// <summary>Palette indices.</summary>
    Indexed = 1,

    /// <summary>Grayscale.</summary>
    Grayscale = 2,

    /// <summary>RGB.</summary>
    Rgb = 3,

    /// <summary>CMYK.</summary>
    Cmyk = 4,

    /// <summary>An alpha channel goes with the other channels.</summary>
    Alpha = 256,

    /// <summary>RGB, stored with blue first.</summary>
    Bgr = 515,
}
