using Korvan.CAD.Binding;

namespace Korvan.CAD.TimeProvision;

/// <summary>The clock of a time stamp.</summary>
[PythonEnum(EnumKind.Flag)]
public enum TimeProvisionType
{
    /// <summary>No time stamp.</summary>
    None = 0,

    /// <summary>Coordinated Universal Time (UTC).</summary>
    Utc = 1,

    /// <summary>Local time.</summary>
    Local = 2,
}
