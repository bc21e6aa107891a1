using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The space that an entity lies in.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadEntitySpaceMode
{
    /// <summary>The model.</summary>
    ModelSpace = 0,

    /// <summary>A sheet of paper.</summary>
    PaperSpace = 1,
}
