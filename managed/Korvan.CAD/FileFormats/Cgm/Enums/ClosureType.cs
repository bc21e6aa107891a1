using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How an arc becomes an area.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClosureType
{
    /// <summary>By lines from both ends to the centre.</summary>
    [CgmKeyword("PIE")]
    Pie = 0,

    /// <summary>By the line between the ends.</summary>
    [CgmKeyword("CHORD")]
    Chord = 1,
}
