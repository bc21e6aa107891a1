using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The editions of the schema.</summary>
[PythonEnum(EnumKind.Flag)]
public enum IfcVersion
{
    /// <summary>IFC2X3, of 2006.</summary>
    IFC2X3 = 1,

    /// <summary>IFC4, ISO 16739:2013, with its addenda.</summary>
    IFC4 = 2,

    /// <summary>IFC4X3, ISO 16739-1:2024.</summary>
    IFC4X3 = 4,
}
