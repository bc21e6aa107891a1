using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The severities of messages about a metafile.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Severity
{
    /// <summary>Informational; nothing is lost.</summary>
    Info = 0,

    /// <summary>The element is kept as it was read, but not interpreted.</summary>
    Unsupported = 1,

    /// <summary>The element breaks a rule, but its meaning is clear.</summary>
    Warning = 2,

    /// <summary>The element was left out or is incomplete.</summary>
    Error = 3,
}
