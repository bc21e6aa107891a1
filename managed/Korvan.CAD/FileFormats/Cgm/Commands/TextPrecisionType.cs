using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How exactly text is placed.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TextPrecisionType
{
    /// <summary>The string as a whole.</summary>
    [CgmKeyword("STRING")] String = 0,

    /// <summary>Each character.</summary>
    [CgmKeyword("CHAR")] Character = 1,

    /// <summary>Each character and its outline.</summary>
    [CgmKeyword("STROKE")] Stroke = 2,
}
