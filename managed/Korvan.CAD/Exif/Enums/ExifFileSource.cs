using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Source of an image.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifFileSource
{
    /// <summary>Another source.</summary>
    Others = 0,

    /// <summary>A film (transmission) scanner.</summary>
    FilmScanner = 1,

    /// <summary>A print (reflection) scanner.</summary>
    ReflectionPrintScanner = 2,

    /// <summary>A digital camera.</summary>
    DigitalStillCamera = 3,
}
