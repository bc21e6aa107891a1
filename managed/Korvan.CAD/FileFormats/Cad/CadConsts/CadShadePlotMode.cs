using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How a viewport is plotted.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadShadePlotMode
{
    /// <summary>As it is shown.</summary>
    AsDisplayed = 0,

    /// <summary>As edges.</summary>
    Wireframe = 1,

    /// <summary>With hidden lines left out.</summary>
    Hidden = 2,

    /// <summary>As a rendered image.</summary>
    Rendered = 3,
}
