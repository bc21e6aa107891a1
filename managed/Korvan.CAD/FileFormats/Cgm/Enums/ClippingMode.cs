using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How wide lines, markers and edges are clipped.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClippingMode
{
    /// <summary>Their mathematical locus is clipped.</summary>
    [CgmKeyword("LOCUS")] Locus = 0,

    /// <summary>Their drawn shape is clipped.</summary>
    [CgmKeyword("SHAPE")] Shape = 1,

    /// <summary>The locus is clipped, then the drawn shape.</summary>
    [CgmKeyword("LOCUSTHENSHAPE")] LocusThenShape = 2,
}
