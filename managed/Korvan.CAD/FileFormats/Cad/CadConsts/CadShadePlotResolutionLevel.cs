using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How finely a shaded plot is made.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadShadePlotResolutionLevel
{
    /// <summary>As a draft.</summary>
    Draft = 0,

    /// <summary>At a quarter of the resolution.</summary>
    Preview = 1,

    /// <summary>At half of the resolution.</summary>
    Normal = 2,

    /// <summary>At full resolution.</summary>
    Presentation = 3,

    /// <summary>At the resolution of the device.</summary>
    Maximum = 4,

    /// <summary>At a resolution of its own.</summary>
    Custom = 5,
}
