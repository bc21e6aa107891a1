using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How an arc becomes an area.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClosureType
{
    /// <summary>By lines from both ends to the centre.</summary>
    Pie = 0,

    /// <summary>By the line between the ends.</summary>
    Chord = 1,
}
