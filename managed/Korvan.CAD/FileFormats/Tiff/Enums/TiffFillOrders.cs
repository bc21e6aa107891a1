using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Order of bits in a byte; the values of tag 266.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffFillOrders
{
    /// <summary>The first pixel is the highest bit.</summary>
    Msb2Lsb = 1,

    /// <summary>The first pixel is the lowest bit.</summary>
    Lsb2Msb = 2,
}
