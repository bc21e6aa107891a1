using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>What the fourth sample of a pixel means.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffAlphaStorage
{
    /// <summary>Nothing that is known.</summary>
    Unspecified = 0,

    /// <summary>Opacity, with which the colours are multiplied.</summary>
    Associated = 1,

    /// <summary>Opacity; the colours are plain.</summary>
    Unassociated = 2,
}
