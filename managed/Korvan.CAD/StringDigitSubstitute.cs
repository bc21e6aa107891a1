using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The digits that are shown for the digits 0 to 9.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringDigitSubstitute
{
    /// <summary>Those of the user's locale.</summary>
    User = 0,

    /// <summary>The digits 0 to 9, without substitution.</summary>
    None = 1,

    /// <summary>The official digits of the country.</summary>
    National = 2,

    /// <summary>The traditional digits of the script.</summary>
    Traditional = 3,
}
