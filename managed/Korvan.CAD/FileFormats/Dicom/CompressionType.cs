using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>How the pixels of a DICOM file are stored.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionType
{
    /// <summary>Plain.</summary>
    None = 0,

    /// <summary>Baseline JPEG, lossy.</summary>
    Jpeg = 1,

    /// <summary>JPEG 2000.</summary>
    Jpeg2000 = 2,

    /// <summary>Run lengths of byte planes.</summary>
    Rle = 3,
}
