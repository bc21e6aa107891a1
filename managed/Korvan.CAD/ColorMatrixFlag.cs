using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Which colours a colour matrix changes.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorMatrixFlag
{
    /// <summary>All colours.</summary>
    Default = 0,

    /// <summary>All colours but grays.</summary>
    SkipGrays = 1,

    /// <summary>Grays only.</summary>
    AltGrays = 2,
}
