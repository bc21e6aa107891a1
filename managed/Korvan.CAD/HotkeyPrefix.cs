using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The treatment of an ampersand, which marks the next character as a hotkey.</summary>
[PythonEnum(EnumKind.Flag)]
public enum HotkeyPrefix
{
    /// <summary>It is an ordinary character.</summary>
    None = 0,

    /// <summary>It is hidden, and the next character is underlined.</summary>
    Show = 1,

    /// <summary>It is hidden.</summary>
    Hide = 2,
}
