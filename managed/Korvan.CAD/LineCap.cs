using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How an open line ends.</summary>
[PythonEnum(EnumKind.Flag)]
public enum LineCap
{
    /// <summary>At its end point.</summary>
    Flat = 0,

    /// <summary>Half its width beyond, squared.</summary>
    Square = 1,

    /// <summary>Half its width beyond, rounded.</summary>
    Round = 2,

    /// <summary>Half its width beyond, pointed.</summary>
    Triangle = 3,
}
