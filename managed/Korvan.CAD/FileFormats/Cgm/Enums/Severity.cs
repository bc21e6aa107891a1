using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>How much a message about a metafile matters.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Severity
{
    /// <summary>Good to know; nothing is lost.</summary>
    Info = 0,

    /// <summary>The element is kept as it was read, but nobody interprets it.</summary>
    Unsupported = 1,

    /// <summary>The element breaks a rule, but its meaning is clear.</summary>
    Warning = 2,

    /// <summary>The element was left out or is not whole.</summary>
    Error = 3,
}
