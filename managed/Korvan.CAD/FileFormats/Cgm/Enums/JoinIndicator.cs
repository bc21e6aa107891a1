using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How two pieces of a line meet.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JoinIndicator
{
    /// <summary>As the program that draws likes it.</summary>
    Unspecified = 1,

    /// <summary>In a point, up to the mitre limit.</summary>
    Mitre = 2,

    /// <summary>Round.</summary>
    Round = 3,

    /// <summary>Cut straight.</summary>
    Bevel = 4,
}
