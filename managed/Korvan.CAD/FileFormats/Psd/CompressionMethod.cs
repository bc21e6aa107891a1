using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>Compression of the merged image of a PSD.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionMethod
{
    /// <summary>Uncompressed.</summary>
    Raw = 0,

    /// <summary>PackBits run-length encoding of each row.</summary>
    Rle = 1,

    /// <summary>Deflate; for layers only. Merged images are neither read nor written so.</summary>
    ZipWithoutPrediction = 2,

    /// <summary>Deflate with prediction; for layers only, as above.</summary>
    ZipWithPrediction = 3,
}
