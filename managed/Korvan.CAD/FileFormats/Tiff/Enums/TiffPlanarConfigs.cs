using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>How the samples of pixels lie; the values of tag 284.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPlanarConfigs
{
    /// <summary>Pixel by pixel.</summary>
    Contiguous = 1,

    /// <summary>A plane for each sample.</summary>
    Separate = 2,
}
