using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Position of chroma samples relative to luma samples.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifYCbCrPositioning
{
    /// <summary>Centred between the luma samples.</summary>
    Centered = 1,

    /// <summary>On the first luma sample (co-sited).</summary>
    CoSited = 2,
}
