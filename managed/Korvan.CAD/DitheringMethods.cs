using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Dithering methods that an option may combine.</summary>
[PythonEnum(EnumKind.Flag)]
[Flags]
public enum DitheringMethods
{
    /// <summary>None: each pixel takes the nearest colour.</summary>
    None = 0,

    /// <summary>Ordered dithering, which compresses well and is stable between frames.</summary>
    Ordered = 1,

    /// <summary>Error diffusion; used where both are set.</summary>
    ErrorDiffusion = 2,

    /// <summary>With error diffusion: every second row runs from right to left, which avoids streaks.</summary>
    Serpentine = 4,
}
