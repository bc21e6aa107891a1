using Korvan.CAD.Binding;

namespace Korvan.CAD.TimeProvision;

/// <summary>Which clock states when something was done.</summary>
[PythonEnum(EnumKind.Flag)]
public enum TimeProvisionType
{
    /// <summary>None: no time is stated.</summary>
    None = 0,

    /// <summary>That of the world.</summary>
    Utc = 1,

    /// <summary>That of the place where the program runs.</summary>
    Local = 2,
}
