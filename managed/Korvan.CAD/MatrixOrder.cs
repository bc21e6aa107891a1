using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>On which side one map is put to another.</summary>
[PythonEnum(EnumKind.Flag)]
public enum MatrixOrder
{
    /// <summary>The new map is done before the old one.</summary>
    Prepend = 0,

    /// <summary>The new map is done after the old one.</summary>
    Append = 1,
}
