using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The form of a drawing file.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadFileFormat
{
    /// <summary>Text or binary interchange file.</summary>
    Dxf = 0,

    /// <summary>Drawing database.</summary>
    Dwg = 1,
}
