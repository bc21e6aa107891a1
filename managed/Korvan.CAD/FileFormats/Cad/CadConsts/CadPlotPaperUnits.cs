using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The unit of paper.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPlotPaperUnits
{
    /// <summary>The inch.</summary>
    Inches = 0,

    /// <summary>The millimetre.</summary>
    Millimeters = 1,

    /// <summary>The pixel.</summary>
    Pixels = 2,
}
