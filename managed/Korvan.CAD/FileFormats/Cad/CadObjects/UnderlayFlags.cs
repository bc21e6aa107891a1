using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>How an underlay is shown.</summary>
[System.Flags]
[PythonEnum(EnumKind.Flag)]
public enum UnderlayFlags
{
    /// <summary>Hidden and not clipped.</summary>
    None = 0,

    /// <summary>Clipped to its boundary.</summary>
    Clipped = 1,

    /// <summary>Shown.</summary>
    On = 2,

    /// <summary>In one colour.</summary>
    Monochrome = 4,

    /// <summary>In colours that differ from the background.</summary>
    AdjustForBackground = 8,

    /// <summary>What is inside of the boundary is hidden.</summary>
    ClipInside = 16,
}
