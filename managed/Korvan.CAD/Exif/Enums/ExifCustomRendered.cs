using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Whether an image was processed specially.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifCustomRendered
{
    /// <summary>Normal processing.</summary>
    NormalProcess = 0,

    /// <summary>Custom processing.</summary>
    CustomProcess = 1,
}
