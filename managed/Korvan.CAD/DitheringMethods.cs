using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Ways of bringing pixels to a palette that an option may combine.</summary>
[PythonEnum(EnumKind.Flag)]
[Flags]
public enum DitheringMethods
{
    /// <summary>Each pixel takes the nearest colour.</summary>
    None = 0,

    /// <summary>A regular pattern of thresholds, which compresses well and is steady between frames.</summary>
    Ordered = 1,

    /// <summary>The error of each pixel is spread over its neighbours; taken where both are set.</summary>
    ErrorDiffusion = 2,

    /// <summary>With error diffusion: every second line is walked from right to left, against streaks.</summary>
    Serpentine = 4,
}
