using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How the distance of lines is measured.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLineSpacing
{
    /// <summary>Taller characters move lines apart.</summary>
    AtLeast = 1,

    /// <summary>All lines have the same distance.</summary>
    Exact = 2,
}
