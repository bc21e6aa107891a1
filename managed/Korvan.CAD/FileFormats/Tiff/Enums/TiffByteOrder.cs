using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>The order of bytes in numbers; the value is the mark at the start of the file.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffByteOrder
{
    /// <summary>Lowest byte first, <c>II</c>.</summary>
    LittleEndian = 0x4949,

    /// <summary>Highest byte first, <c>MM</c>.</summary>
    BigEndian = 0x4D4D,
}
