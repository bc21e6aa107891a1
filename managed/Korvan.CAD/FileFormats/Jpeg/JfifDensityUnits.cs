using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>What the densities of a JPEG count (JFIF 1.02).</summary>
[PythonEnum(EnumKind.Integer)]
public enum JfifDensityUnits
{
    /// <summary>Nothing: they give the shape of a pixel alone.</summary>
    NoUnits = 0,

    /// <summary>Pixels in an inch.</summary>
    PixelsPerInch = 1,

    /// <summary>Pixels in a centimetre.</summary>
    PixelsPerCm = 2,
}
