using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The forms of real numbers in binary files.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Precision
{
    /// <summary>Fixed point, 16 bits for the whole part and 16 for the fraction.</summary>
    Fixed32 = 0,

    /// <summary>Fixed point, 32 bits for the whole part and 32 for the fraction.</summary>
    Fixed64 = 1,

    /// <summary>Floating point, single precision (IEC 60559).</summary>
    Floating32 = 2,

    /// <summary>Floating point, double precision (IEC 60559).</summary>
    Floating64 = 3,
}
