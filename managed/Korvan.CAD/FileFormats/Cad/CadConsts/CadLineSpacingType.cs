using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How the distance of text lines is measured. Group codes 72, 73.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLineSpacingType
{
    /// <summary>Not stated.</summary>
    None = 0,

    /// <summary>At least: taller characters increase it.</summary>
    AtLeast = 1,

    /// <summary>Exactly.</summary>
    Exact = 2,
}
