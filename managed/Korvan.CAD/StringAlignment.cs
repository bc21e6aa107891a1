using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The alignment of text in its layout rectangle, relative to the reading direction.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringAlignment
{
    /// <summary>At the start.</summary>
    Near = 0,

    /// <summary>Centred.</summary>
    Center = 1,

    /// <summary>At the end.</summary>
    Far = 2,
}
