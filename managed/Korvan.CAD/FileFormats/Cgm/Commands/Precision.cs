using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How real numbers are coded in binary files.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Precision
{
    /// <summary>16 bits for the whole part, 16 for the fraction.</summary>
    Fixed32 = 0,

    /// <summary>32 bits for the whole part, 32 for the fraction.</summary>
    Fixed64 = 1,

    /// <summary>Single precision (IEC 60559).</summary>
    Floating32 = 2,

    /// <summary>Double precision (IEC 60559).</summary>
    Floating64 = 3,
}
