using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>What of a wide line, a marker or an edge is cut at the border of the clip rectangle.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClippingMode
{
    /// <summary>The line without its width.</summary>
    [CgmKeyword("LOCUS")]
    Locus = 0,

    /// <summary>What is drawn.</summary>
    [CgmKeyword("SHAPE")]
    Shape = 1,

    /// <summary>First the line without its width, then what is drawn.</summary>
    [CgmKeyword("LOCUSTHENSHAPE")]
    LocusThenShape = 2,
}
