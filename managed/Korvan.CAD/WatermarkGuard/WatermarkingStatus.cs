using Korvan.CAD.Binding;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>What a drawing is found to have of a watermark; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum WatermarkingStatus
{
    /// <summary>There is no watermark.</summary>
    None = 0,

    /// <summary>There is one.</summary>
    Found = 1,

    /// <summary>The password opens it, and its text is the one asked for.</summary>
    Valid = 2,

    /// <summary>The password opens it, but it has another text.</summary>
    TextDiffers = 4,

    /// <summary>No copy is opened by the password: it is another one, or all copies were changed.</summary>
    WrongPassword = 8,

    /// <summary>Some copies are missing or changed.</summary>
    Damaged = 16,
}
