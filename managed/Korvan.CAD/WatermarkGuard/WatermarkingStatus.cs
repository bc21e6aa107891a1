using Korvan.CAD.Binding;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>The state of the watermark of a drawing; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum WatermarkingStatus
{
    /// <summary>There is no watermark.</summary>
    None = 0,

    /// <summary>There is a watermark.</summary>
    Found = 1,

    /// <summary>The password is right, and the text is the expected one.</summary>
    Valid = 2,

    /// <summary>The password is right, but the text differs.</summary>
    TextDiffers = 4,

    /// <summary>No copy can be decrypted: the password is wrong, or all copies were changed.</summary>
    WrongPassword = 8,

    /// <summary>Some copies are missing or changed.</summary>
    Damaged = 16,
}
