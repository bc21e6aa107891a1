using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Planar configuration: storage of samples; the values of tag 284.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPlanarConfigs
{
    /// <summary>Chunky: pixel by pixel.</summary>
    Contiguous = 1,

    /// <summary>Planar: a plane for each sample.</summary>
    Separate = 2,
}
