using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>Colour space of a JPEG.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JpegCompressionColorMode
{
    /// <summary>Grayscale.</summary>
    Grayscale = 0,

    /// <summary>Y'CbCr: luma and two chroma components; the most common.</summary>
    YCbCr = 1,

    /// <summary>YCCK: cyan, magenta and yellow as luma and chroma, plus black; for print.</summary>
    Ycck = 2,

    /// <summary>RGB. Such files are read, but not written.</summary>
    Rgb = 3,

    /// <summary>CMYK. Such files are read, but not written.</summary>
    Cmyk = 4,
}
