using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>How far the subject was.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifSubjectDistanceRange
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>Near the lens.</summary>
    Macro = 1,

    /// <summary>Near.</summary>
    CloseView = 2,

    /// <summary>Far.</summary>
    DistantView = 3,
}
