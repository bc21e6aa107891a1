using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The types of fields of objects.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadParameterType
{
    /// <summary>No type.</summary>
    None = 0,

    /// <summary>A boolean.</summary>
    Bool = 1,

    /// <summary>An integer of 16 bits.</summary>
    Short = 2,

    /// <summary>An integer of 32 bits.</summary>
    Int = 3,

    /// <summary>An integer of 64 bits.</summary>
    Long = 4,

    /// <summary>A floating-point number.</summary>
    Double = 5,

    /// <summary>A string, a name or a handle.</summary>
    String = 6,

    /// <summary>Bytes.</summary>
    Binary = 7,
}
