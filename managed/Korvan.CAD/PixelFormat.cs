using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The meaning of the channels of a pixel.</summary>
[PythonEnum(EnumKind.Flag)]
public enum PixelFormat : long
{
    /// <summary>Not known.</summary>
    Undefined = 0,

    /// <summary>Numbers of colours in a palette.</summary>
    Indexed = 1,

    /// <summary>Lightness.</summary>
    Grayscale = 2,

    /// <summary>Red, green and blue.</summary>
    Rgb = 3,

    /// <summary>Cyan, magenta, yellow and black.</summary>
    Cmyk = 4,

    /// <summary>An opacity goes with the other channels.</summary>
    Alpha = 256,

    /// <summary>Red, green and blue, stored with blue first.</summary>
    Bgr = 515,
}
