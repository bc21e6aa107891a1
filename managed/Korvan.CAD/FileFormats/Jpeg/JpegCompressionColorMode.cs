using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>The colours that a JPEG stores.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JpegCompressionColorMode
{
    /// <summary>Lightness alone.</summary>
    Grayscale = 0,

    /// <summary>Lightness and two differences of colour: the usual one.</summary>
    YCbCr = 1,

    /// <summary>Cyan, magenta and yellow as lightness and differences, and black: for print.</summary>
    Ycck = 2,

    /// <summary>Red, green and blue as they are. Such files are read; none are written.</summary>
    Rgb = 3,

    /// <summary>Cyan, magenta, yellow and black as they are. Such files are read; none are written.</summary>
    Cmyk = 4,
}
