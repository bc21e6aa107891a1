using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Why a combination of options cannot be written as TIFF.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffOptionsError
{
    /// <summary>It can.</summary>
    NoError = 0,

    /// <summary>The compression has no encoder.</summary>
    CompressionNotSupported = 1,

    /// <summary>Samples of this many bits are not written.</summary>
    BitsPerSampleNotSupported = 2,

    /// <summary>The number of sample sizes is not the number of samples, or they differ.</summary>
    BitsPerSampleMismatch = 3,

    /// <summary>This meaning of samples is not written.</summary>
    PhotometricNotSupported = 4,

    /// <summary>Facsimile codes hold black and white only.</summary>
    CompressionNeedsBilevel = 5,

    /// <summary>JPEG holds grey and colours of 8 bits only.</summary>
    CompressionNeedsFullSamples = 6,

    /// <summary>The palette has more colours than the samples can number.</summary>
    PaletteTooLarge = 7,
}
