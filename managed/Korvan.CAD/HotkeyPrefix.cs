using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>What becomes of an ampersand in a text that marks the letter behind it as a key.</summary>
[PythonEnum(EnumKind.Flag)]
public enum HotkeyPrefix
{
    /// <summary>It is a letter as any other.</summary>
    None = 0,

    /// <summary>It is left out, and the letter behind it is underlined.</summary>
    Show = 1,

    /// <summary>It is left out.</summary>
    Hide = 2,
}
