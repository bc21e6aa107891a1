using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The integers that a field may be.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadIntegralParameterType
{
    /// <summary>No integer.</summary>
    None = 0,

    /// <summary>A boolean, 0 or 1.</summary>
    Bool = 1,

    /// <summary>An integer of 16 bits.</summary>
    Short = 2,

    /// <summary>An integer of 32 bits.</summary>
    Int = 3,

    /// <summary>An integer of 64 bits.</summary>
    Long = 4,
}
