using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Why a combination of options cannot be written as TIFF.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffOptionsError
{
    /// <summary>No error: the combination can be written.</summary>
    NoError = 0,

    /// <summary>The compression has no encoder.</summary>
    CompressionNotSupported = 1,

    /// <summary>Samples with this number of bits are not supported.</summary>
    BitsPerSampleNotSupported = 2,

    /// <summary>The number of sample sizes is not the number of samples, or they differ.</summary>
    BitsPerSampleMismatch = 3,

    /// <summary>The photometric interpretation is not supported.</summary>
    PhotometricNotSupported = 4,

    /// <summary>CCITT compression is for bilevel images only.</summary>
    CompressionNeedsBilevel = 5,

    /// <summary>JPEG compression is for 8-bit greyscale and colour only.</summary>
    CompressionNeedsFullSamples = 6,

    /// <summary>The palette has more colours than the samples can index.</summary>
    PaletteTooLarge = 7,
}
