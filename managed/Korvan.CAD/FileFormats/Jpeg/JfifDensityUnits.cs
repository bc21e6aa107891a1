using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>Unit of the densities of a JPEG (JFIF 1.02).</summary>
[PythonEnum(EnumKind.Integer)]
public enum JfifDensityUnits
{
    /// <summary>No unit: the values give only the aspect ratio of a pixel.</summary>
    NoUnits = 0,

    /// <summary>Pixels per inch.</summary>
    PixelsPerInch = 1,

    /// <summary>Pixels per centimetre.</summary>
    PixelsPerCm = 2,
}
