using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Distance of the subject.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSubjectDistanceRange
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>Macro: very close to the lens.</summary>
    Macro = 1,

    /// <summary>Close view.</summary>
    CloseView = 2,

    /// <summary>Distant view.</summary>
    DistantView = 3,
}
