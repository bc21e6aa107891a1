using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>The types that values of a directory may have.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffDataTypes
{
    /// <summary>Unsigned, 8 bits.</summary>
    Byte = 1,

    /// <summary>Text that ends with a zero byte.</summary>
    Ascii = 2,

    /// <summary>Unsigned, 16 bits.</summary>
    Short = 3,

    /// <summary>Unsigned, 32 bits.</summary>
    Long = 4,

    /// <summary>Two unsigned numbers of 32 bits: numerator and denominator.</summary>
    Rational = 5,

    /// <summary>Signed, 8 bits.</summary>
    SByte = 6,

    /// <summary>Bytes whose meaning the tag knows.</summary>
    Undefined = 7,

    /// <summary>Signed, 16 bits.</summary>
    SShort = 8,

    /// <summary>Signed, 32 bits.</summary>
    SLong = 9,

    /// <summary>Two signed numbers of 32 bits.</summary>
    SRational = 10,

    /// <summary>IEEE 754, 32 bits.</summary>
    Float = 11,

    /// <summary>IEEE 754, 64 bits.</summary>
    Double = 12,

    /// <summary>The place of another directory.</summary>
    Ifd = 13,
}
