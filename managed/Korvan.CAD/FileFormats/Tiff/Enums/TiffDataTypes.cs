using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Types of the values of a tag (TIFF 6.0, section 2).</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffDataTypes
{
    /// <summary>Unsigned 8-bit integer.</summary>
    Byte = 1,

    /// <summary>String that ends with a zero byte.</summary>
    Ascii = 2,

    /// <summary>Unsigned 16-bit integer.</summary>
    Short = 3,

    /// <summary>Unsigned 32-bit integer.</summary>
    Long = 4,

    /// <summary>Two unsigned 32-bit integers: numerator and denominator.</summary>
    Rational = 5,

    /// <summary>Signed 8-bit integer.</summary>
    SByte = 6,

    /// <summary>Bytes whose meaning is determined by the tag number.</summary>
    Undefined = 7,

    /// <summary>Signed 16-bit integer.</summary>
    SShort = 8,

    /// <summary>Signed 32-bit integer.</summary>
    SLong = 9,

    /// <summary>Two signed 32-bit integers: numerator and denominator.</summary>
    SRational = 10,

    /// <summary>IEEE 754 floating-point number of 32 bits.</summary>
    Float = 11,

    /// <summary>IEEE 754 floating-point number of 64 bits.</summary>
    Double = 12,

    /// <summary>Offset of another directory.</summary>
    Ifd = 13,
}
