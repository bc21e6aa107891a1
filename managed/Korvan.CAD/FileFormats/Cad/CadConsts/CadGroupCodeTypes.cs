using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The types of values by their group codes.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadGroupCodeTypes
{
    /// <summary>No type that formats define.</summary>
    None = 0,

    /// <summary>A string.</summary>
    Text = 1,

    /// <summary>A coordinate of a point.</summary>
    Point = 2,

    /// <summary>A floating-point number.</summary>
    Number = 3,

    /// <summary>An integer of 16 bits.</summary>
    Short = 4,

    /// <summary>An integer of 32 bits.</summary>
    Integer = 5,

    /// <summary>An integer of 64 bits.</summary>
    Long = 6,

    /// <summary>A boolean, 0 or 1.</summary>
    Boolean = 7,

    /// <summary>The handle of an object, in hexadecimal.</summary>
    Handle = 8,

    /// <summary>Bytes, in hexadecimal.</summary>
    Binary = 9,

    /// <summary>A comment.</summary>
    Comment = 10,
}
