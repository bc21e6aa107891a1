using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>What stays fixed when a helix changes.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadHelixLimitation
{
    /// <summary>The height of a turn.</summary>
    TurnHeight = 0,

    /// <summary>The number of turns.</summary>
    Turns = 1,

    /// <summary>The height.</summary>
    Height = 2,
}
