using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The kind of an edge of a hatch boundary.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadHatchBoundaryType
{
    /// <summary>A straight line.</summary>
    Line = 1,

    /// <summary>A circular arc.</summary>
    CircularArc = 2,

    /// <summary>An elliptic arc.</summary>
    EllipticArc = 3,

    /// <summary>A spline.</summary>
    Spline = 4,
}
