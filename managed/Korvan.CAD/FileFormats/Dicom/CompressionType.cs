using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>Compression of the pixels of a DICOM file.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionType
{
    /// <summary>Uncompressed.</summary>
    None = 0,

    /// <summary>Baseline JPEG, lossy.</summary>
    Jpeg = 1,

    /// <summary>JPEG 2000.</summary>
    Jpeg2000 = 2,

    /// <summary>Run-length encoding of byte planes.</summary>
    Rle = 3,
}
