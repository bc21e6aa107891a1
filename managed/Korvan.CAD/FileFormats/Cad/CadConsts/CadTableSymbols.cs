using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The symbol tables.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadTableSymbols
{
    /// <summary>No symbol table.</summary>
    None = 0,

    /// <summary>APPID.</summary>
    ApplicationIds = 1,

    /// <summary>BLOCK_RECORD.</summary>
    BlockRecords = 2,

    /// <summary>DIMSTYLE.</summary>
    DimensionStyles = 3,

    /// <summary>LAYER.</summary>
    Layers = 4,

    /// <summary>LTYPE.</summary>
    LineTypes = 5,

    /// <summary>STYLE.</summary>
    TextStyles = 6,

    /// <summary>UCS.</summary>
    CoordinateSystems = 7,

    /// <summary>VIEW.</summary>
    Views = 8,

    /// <summary>VPORT.</summary>
    Viewports = 9,
}
