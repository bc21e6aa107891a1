using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Where the samples of colour lie among those of lightness.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifYCbCrPositioning
{
    /// <summary>In the middle of them.</summary>
    Centered = 1,

    /// <summary>On the first of them.</summary>
    CoSited = 2,
}
