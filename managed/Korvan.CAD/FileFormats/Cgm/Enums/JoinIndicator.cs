using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The line and edge joins.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JoinIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>Mitre, up to the mitre limit.</summary>
    Mitre = 2,

    /// <summary>Round.</summary>
    Round = 3,

    /// <summary>Bevel.</summary>
    Bevel = 4,
}
