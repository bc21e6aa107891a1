using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>State of the flash.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifFlash
{
    /// <summary>The flash did not fire.</summary>
    NoFlash = 0,

    /// <summary>The flash fired.</summary>
    Fired = 1,

    /// <summary>The flash fired; no return light was detected.</summary>
    FiredReturnNotDetected = 5,

    /// <summary>The flash fired; return light was detected.</summary>
    FiredReturnDetected = 7,

    /// <summary>The flash fired in compulsory mode.</summary>
    YesCompulsory = 9,

    /// <summary>The flash fired in compulsory mode; no return light was detected.</summary>
    YesCompulsoryReturnNotDetected = 0xD,

    /// <summary>The flash fired in compulsory mode; return light was detected.</summary>
    YesCompulsoryReturnDetected = 0xF,

    /// <summary>The flash did not fire in compulsory mode.</summary>
    NoCompulsory = 0x10,

    /// <summary>The flash did not fire in automatic mode.</summary>
    NoAuto = 0x18,

    /// <summary>The flash fired in automatic mode.</summary>
    YesAuto = 0x19,

    /// <summary>The flash fired in automatic mode; no return light was detected.</summary>
    YesAutoReturnNotDetected = 0x1D,

    /// <summary>The flash fired in automatic mode; return light was detected.</summary>
    YesAutoReturnDetected = 0x1F,

    /// <summary>The camera has no flash.</summary>
    NoFlashFunction = 0x20,

    /// <summary>The flash fired with red-eye reduction.</summary>
    YesRedEye = 0x41,

    /// <summary>The flash fired in compulsory mode with red-eye reduction.</summary>
    YesCompulsoryRedEye = 0x49,

    /// <summary>The flash fired in automatic mode with red-eye reduction.</summary>
    YesAutoRedEye = 0x59,
}
