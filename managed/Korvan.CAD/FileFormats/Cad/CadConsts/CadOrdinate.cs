using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The axis of a coordinate dimension.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadOrdinate
{
    /// <summary>The ordinate.</summary>
    Y = 0,

    /// <summary>The abscissa.</summary>
    X = 1,
}
