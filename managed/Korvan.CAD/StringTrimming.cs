using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How text is trimmed that does not fit its layout rectangle.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringTrimming
{
    /// <summary>It is not trimmed.</summary>
    None = 0,

    /// <summary>After the last character that fits.</summary>
    Character = 1,

    /// <summary>After the last word that fits.</summary>
    Word = 2,

    /// <summary>After a character, with an ellipsis.</summary>
    EllipsisCharacter = 3,

    /// <summary>After a word, with an ellipsis.</summary>
    EllipsisWord = 4,

    /// <summary>In the middle, with an ellipsis, as paths are shortened.</summary>
    EllipsisPath = 5,
}
