using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The versions of the schema.</summary>
[PythonEnum(EnumKind.Flag)]
public enum IfcVersion
{
    /// <summary>IFC2X3 (2006), with its corrigendum.</summary>
    IFC2X3 = 1,

    /// <summary>IFC4, ISO 16739:2013, with its addenda.</summary>
    IFC4 = 2,

    /// <summary>IFC4X3, ISO 16739-1:2024.</summary>
    IFC4X3 = 4,
}
