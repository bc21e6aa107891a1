using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The direction of a text of a leader.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadHorizontalDirection
{
    /// <summary>As the annotation.</summary>
    Default = 0,

    /// <summary>Always level.</summary>
    Horizontal = 1,
}
