using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>Samples of a DICOM image.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorType
{
    /// <summary>RGB, 8 bits per sample.</summary>
    Rgb24Bit = 0,

    /// <summary>Grayscale, 8 bits.</summary>
    Grayscale8Bit = 1,

    /// <summary>Grayscale, 16 bits.</summary>
    Grayscale16Bit = 2,
}
