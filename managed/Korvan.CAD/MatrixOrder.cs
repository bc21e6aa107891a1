using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Order in which transformations are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum MatrixOrder
{
    /// <summary>The new transformation is applied before the old one.</summary>
    Prepend = 0,

    /// <summary>The new transformation is applied after the old one.</summary>
    Append = 1,
}
