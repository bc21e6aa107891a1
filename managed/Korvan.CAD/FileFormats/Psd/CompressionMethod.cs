using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd;

/// <summary>How the merged picture of a PSD is stored.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CompressionMethod
{
    /// <summary>Plain.</summary>
    Raw = 0,

    /// <summary>Run lengths of each line.</summary>
    Rle = 1,

    /// <summary>Deflate. Layers may have it; merged pictures are neither read nor written so.</summary>
    ZipWithoutPrediction = 2,

    /// <summary>Deflate over differences; for layers only, as above.</summary>
    ZipWithPrediction = 3,
}
