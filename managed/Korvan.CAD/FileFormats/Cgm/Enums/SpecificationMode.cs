using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>What the numbers of a width or size count.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SpecificationMode
{
    /// <summary>Units of the coordinates.</summary>
    Absolute = 0,

    /// <summary>Multiples of what the device usually draws.</summary>
    Scaled = 1,

    /// <summary>Parts of the longer side of the picture's extent.</summary>
    Fractional = 2,

    /// <summary>Millimetres.</summary>
    Millimetres = 3,
}
