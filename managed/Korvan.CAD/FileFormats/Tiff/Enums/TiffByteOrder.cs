using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Byte order; the value is the mark at the start of the file.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffByteOrder
{
    /// <summary>Little-endian, <c>II</c>.</summary>
    LittleEndian = 0x4949,

    /// <summary>Big-endian, <c>MM</c>.</summary>
    BigEndian = 0x4D4D,
}
