using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Light source.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifLightSource
{
    /// <summary>Not known.</summary>
    Unknown = 0,

    /// <summary>Daylight.</summary>
    Daylight = 1,

    /// <summary>Fluorescent light.</summary>
    Fluorescent = 2,

    /// <summary>Tungsten (incandescent) light.</summary>
    Tungsten = 3,

    /// <summary>Flash.</summary>
    Flash = 4,

    /// <summary>Fine weather.</summary>
    FineWeather = 9,

    /// <summary>Cloudy weather.</summary>
    CloudyWeather = 10,

    /// <summary>Shade.</summary>
    Shade = 11,

    /// <summary>Daylight fluorescent light (5700 to 7100 K).</summary>
    DaylightFluorescent = 12,

    /// <summary>Day white fluorescent light (4600 to 5500 K).</summary>
    DayWhiteFluorescent = 13,

    /// <summary>Cool white fluorescent light (3800 to 4500 K).</summary>
    CoolWhiteFluorescent = 14,

    /// <summary>White fluorescent light (3250 to 3800 K).</summary>
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

    /// <summary>ISO studio tungsten light.</summary>
    IsoStudioTungsten = 24,

    /// <summary>Another light source.</summary>
    OtherLightSource = 255,
}
