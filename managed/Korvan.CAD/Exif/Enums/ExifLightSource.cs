using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>The light.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifLightSource
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>Daylight.</summary>
    Daylight = 1,

    /// <summary>Fluorescent lamps.</summary>
    Fluorescent = 2,

    /// <summary>Incandescent lamps.</summary>
    Tungsten = 3,

    /// <summary>Flash.</summary>
    Flash = 4,

    /// <summary>Fine weather.</summary>
    FineWeather = 9,

    /// <summary>Clouds.</summary>
    CloudyWeather = 10,

    /// <summary>Shade.</summary>
    Shade = 11,

    /// <summary>Lamps like daylight.</summary>
    DaylightFluorescent = 12,

    /// <summary>Lamps, day white.</summary>
    DayWhiteFluorescent = 13,

    /// <summary>Lamps, cool white.</summary>
    CoolWhiteFluorescent = 14,

    /// <summary>Lamps, white.</summary>
    WhiteFluorescent = 15,

    /// <summary>Standard light A.</summary>
    StandardlightA = 17,

    /// <summary>Standard light B.</summary>
    StandardlightB = 18,

    /// <summary>Standard light C.</summary>
    StandardlightC = 19,

    /// <summary>D55.</summary>
    D55 = 20,

    /// <summary>D65.</summary>
    D65 = 21,

    /// <summary>D75.</summary>
    D75 = 22,

    /// <summary>D50.</summary>
    D50 = 23,

    /// <summary>Studio lamps.</summary>
    IsoStudioTungsten = 24,

    /// <summary>Another.</summary>
    OtherLightSource = 255,
}
