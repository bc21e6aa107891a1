using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Which colours a colour matrix changes.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorMatrixFlag
{
    /// <summary>All colours.</summary>
    Default = 0,

    /// <summary>Greys stay as they are.</summary>
    SkipGrays = 1,

    /// <summary>Greys alone are changed.</summary>
    AltGrays = 2,
}
