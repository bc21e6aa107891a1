using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Properties of a plot; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPlotLayoutFlag
{
    /// <summary>Nothing.</summary>
    None = 0,

    /// <summary>Borders of viewports are plotted.</summary>
    PlotViewportBorders = 1,

    /// <summary>Plot styles are shown.</summary>
    ShowPlotStyles = 2,

    /// <summary>The plot is centred.</summary>
    PlotCentered = 4,

    /// <summary>Hidden lines are left out.</summary>
    PlotHidden = 8,

    /// <summary>The scale is a standard one.</summary>
    UseStandardScale = 16,

    /// <summary>Plot styles are plotted.</summary>
    PlotPlotStyles = 32,

    /// <summary>Line weights are scaled.</summary>
    ScaleLineweights = 64,

    /// <summary>Line weights are plotted.</summary>
    PrintLineweights = 128,

    /// <summary>Viewports are drawn before the rest.</summary>
    DrawViewportsFirst = 512,

    /// <summary>The settings are those of the model.</summary>
    ModelType = 1024,

    /// <summary>Paper follows the device.</summary>
    UpdatePaper = 2048,

    /// <summary>The view follows the paper.</summary>
    ZoomToPaperOnUpdate = 4096,

    /// <summary>Not yet set up.</summary>
    Initializing = 8192,

    /// <summary>The preview was set up.</summary>
    PrevPlotInit = 16384,
}
