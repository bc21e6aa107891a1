using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif.Enums;

/// <summary>Whether the picture was processed specially.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifCustomRendered
{
    /// <summary>Normally.</summary>
    NormalProcess = 0,

    /// <summary>Specially.</summary>
    CustomProcess = 1,
}
