using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How lines in space are drawn.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLineStyle
{
    /// <summary>Solid.</summary>
    Continuous = 0,

    /// <summary>Hidden by what is in front of them.</summary>
    Hidden = 1,
}
