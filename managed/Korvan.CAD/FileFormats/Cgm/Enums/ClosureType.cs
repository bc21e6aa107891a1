using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How an arc is closed.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClosureType
{
    /// <summary>By lines from both ends to the centre, a sector.</summary>
    [CgmKeyword("PIE")] Pie = 0,

    /// <summary>By the chord between the ends, a segment.</summary>
    [CgmKeyword("CHORD")] Chord = 1,
}
