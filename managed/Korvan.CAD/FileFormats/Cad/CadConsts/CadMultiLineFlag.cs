using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Properties of a multiline; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadMultiLineFlag
{
    /// <summary>Nothing.</summary>
    None = 0,

    /// <summary>It has at least one vertex.</summary>
    HasVertices = 1,

    /// <summary>The last vertex is joined to the first.</summary>
    Closed = 2,

    /// <summary>No caps at the start.</summary>
    SuppressStartCaps = 4,

    /// <summary>No caps at the end.</summary>
    SuppressEndCaps = 8,
}
