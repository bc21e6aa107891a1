using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The cap at the ends of open lines.</summary>
[PythonEnum(EnumKind.Flag)]
public enum LineCap
{
    /// <summary>Flat, at the end point.</summary>
    Flat = 0,

    /// <summary>Square, half the line width beyond the end point.</summary>
    Square = 1,

    /// <summary>Round, half the line width beyond the end point.</summary>
    Round = 2,

    /// <summary>Triangular, half the line width beyond the end point.</summary>
    Triangle = 3,
}
