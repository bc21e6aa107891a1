using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Which part of a layout is plotted.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPlotType
{
    /// <summary>What was shown last.</summary>
    LastScreenDisplay = 0,

    /// <summary>All entities.</summary>
    DrawingExtents = 1,

    /// <summary>The limits of the drawing.</summary>
    DrawingLimits = 2,

    /// <summary>A named view.</summary>
    ViewSpecified = 3,

    /// <summary>A window.</summary>
    WindowSpecified = 4,

    /// <summary>The paper.</summary>
    LayoutInformation = 5,
}
