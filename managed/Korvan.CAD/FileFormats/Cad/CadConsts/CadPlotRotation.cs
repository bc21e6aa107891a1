using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How the drawing is rotated on the paper.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPlotRotation
{
    /// <summary>Not at all.</summary>
    NoRotation = 0,

    /// <summary>By 90 degrees counterclockwise.</summary>
    Counterclockwise90Degrees = 1,

    /// <summary>By 180 degrees.</summary>
    UpsideDown = 2,

    /// <summary>By 90 degrees clockwise.</summary>
    Clockwise90Degrees = 3,
}
