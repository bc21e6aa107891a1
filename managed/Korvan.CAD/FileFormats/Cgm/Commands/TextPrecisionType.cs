using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How exactly texts are placed.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TextPrecisionType
{
    /// <summary>The text as a whole.</summary>
    String = 0,

    /// <summary>Each character.</summary>
    Character = 1,

    /// <summary>Each character and its shape.</summary>
    Stroke = 2,
}
