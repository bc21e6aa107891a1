using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Meaning of the fourth sample of a pixel; values of tag 338.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffAlphaStorage
{
    /// <summary>Unspecified.</summary>
    Unspecified = 0,

    /// <summary>Associated alpha: colours are premultiplied.</summary>
    Associated = 1,

    /// <summary>Unassociated alpha: colours are not premultiplied.</summary>
    Unassociated = 2,
}
