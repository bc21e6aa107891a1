using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a text is cut that is too long for its room.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringTrimming
{
    /// <summary>It is not cut.</summary>
    None = 0,

    /// <summary>Behind the last letter that fits.</summary>
    Character = 1,

    /// <summary>Behind the last word that fits.</summary>
    Word = 2,

    /// <summary>Behind a letter, with three dots.</summary>
    EllipsisCharacter = 3,

    /// <summary>Behind a word, with three dots.</summary>
    EllipsisWord = 4,

    /// <summary>In the middle, as paths are shortened, with three dots there.</summary>
    EllipsisPath = 5,
}
