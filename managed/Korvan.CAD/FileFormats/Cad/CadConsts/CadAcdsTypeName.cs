using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The types of objects in the data section.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadAcdsTypeName
{
    /// <summary>A type that the library does not know.</summary>
    None = 0,

    /// <summary>ACDSSCHEMA.</summary>
    Schema = 1,

    /// <summary>ACDSRECORD.</summary>
    Record = 2,
}
