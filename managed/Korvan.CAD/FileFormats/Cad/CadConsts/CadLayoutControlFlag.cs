using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Properties of a layout; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLayoutControlFlag
{
    /// <summary>Nothing.</summary>
    None = 0,

    /// <summary>Line types are scaled by viewports.</summary>
    PsltScale = 1,

    /// <summary>Limits are checked.</summary>
    LimCheck = 2,
}
