using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Where a text stands in the room that it has, seen in the direction of reading.</summary>
[PythonEnum(EnumKind.Flag)]
public enum StringAlignment
{
    /// <summary>At the begin.</summary>
    Near = 0,

    /// <summary>In the middle.</summary>
    Center = 1,

    /// <summary>At the end.</summary>
    Far = 2,
}
