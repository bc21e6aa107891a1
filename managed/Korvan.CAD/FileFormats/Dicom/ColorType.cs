using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>The samples of a DICOM picture.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorType
{
    /// <summary>Red, green and blue of 8 bits each.</summary>
    Rgb24Bit = 0,

    /// <summary>Lightness of 8 bits.</summary>
    Grayscale8Bit = 1,

    /// <summary>Lightness of 16 bits.</summary>
    Grayscale16Bit = 2,
}
