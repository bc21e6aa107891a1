using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Where the picture came from.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifFileSource
{
    /// <summary>Elsewhere.</summary>
    Others = 0,

    /// <summary>A scanner for film.</summary>
    FilmScanner = 1,

    /// <summary>A scanner for prints.</summary>
    ReflectionPrintScanner = 2,

    /// <summary>A camera.</summary>
    DigitalStillCamera = 3,
}
