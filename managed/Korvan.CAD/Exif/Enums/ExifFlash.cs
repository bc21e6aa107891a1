using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>What the flash did.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifFlash
{
    /// <summary>It did not fire.</summary>
    NoFlash = 0,

    /// <summary>It fired.</summary>
    Fired = 1,

    /// <summary>It fired; no light came back.</summary>
    FiredReturnNotDetected = 5,

    /// <summary>It fired; light came back.</summary>
    FiredReturnDetected = 7,

    /// <summary>It was made to fire.</summary>
    YesCompulsory = 9,

    /// <summary>It was made to fire; no light came back.</summary>
    YesCompulsoryReturnNotDetected = 0xD,

    /// <summary>It was made to fire; light came back.</summary>
    YesCompulsoryReturnDetected = 0xF,

    /// <summary>It was kept from firing.</summary>
    NoCompulsory = 0x10,

    /// <summary>The camera chose that it would not fire.</summary>
    NoAuto = 0x18,

    /// <summary>The camera chose that it would fire.</summary>
    YesAuto = 0x19,

    /// <summary>The camera let it fire; no light came back.</summary>
    YesAutoReturnNotDetected = 0x1D,

    /// <summary>The camera let it fire; light came back.</summary>
    YesAutoReturnDetected = 0x1F,

    /// <summary>There is none.</summary>
    NoFlashFunction = 0x20,

    /// <summary>It fired, with the red eye reduced.</summary>
    YesRedEye = 0x41,

    /// <summary>It was made to fire, with the red eye reduced.</summary>
    YesCompulsoryRedEye = 0x49,

    /// <summary>The camera let it fire, with the red eye reduced.</summary>
    YesAutoRedEye = 0x59,
}
