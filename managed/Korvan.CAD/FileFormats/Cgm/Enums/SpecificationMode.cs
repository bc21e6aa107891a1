using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>What the numbers of a width or size count.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SpecificationMode
{
    /// <summary>Units of the coordinates.</summary>
    [CgmKeyword("ABS")]
    Absolute = 0,

    /// <summary>Multiples of what the device usually draws.</summary>
    [CgmKeyword("SCALED")]
    Scaled = 1,

    /// <summary>Parts of the longer side of the picture's extent.</summary>
    [CgmKeyword("FRACTIONAL")]
    Fractional = 2,

    /// <summary>Millimetres.</summary>
    [CgmKeyword("MM")]
    Millimetres = 3,
}
