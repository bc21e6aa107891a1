using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Which digits are shown for the digits 0 to 9 of a text.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringDigitSubstitute
{
    /// <summary>Those of the user's settings.</summary>
    User = 0,

    /// <summary>0 to 9 themselves.</summary>
    None = 1,

    /// <summary>Those that are official where the language is spoken.</summary>
    National = 2,

    /// <summary>Those of the language's own script.</summary>
    Traditional = 3,
}
