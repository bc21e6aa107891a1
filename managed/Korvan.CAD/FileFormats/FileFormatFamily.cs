using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats;

/// <summary>Families of file formats; the values can be combined to select several families.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FileFormatFamily
{
    /// <summary>No family.</summary>
    Undefined = 0,

    /// <summary>Raster images.</summary>
    Raster = 1,

    /// <summary>Vector graphics and page formats.</summary>
    Page = 2,

    /// <summary>Drawings in their binary format, and templates.</summary>
    Dwg = 4,

    /// <summary>Drawings in their interchange format.</summary>
    Dxf = 8,

    /// <summary>Design files.</summary>
    Dgn = 16,

    /// <summary>Published drawings.</summary>
    Dwf = 32,

    /// <summary>Building models.</summary>
    Ifc = 64,

    /// <summary>Meshes.</summary>
    Mesh = 128,

    /// <summary>Solids with exact surfaces.</summary>
    Solid = 256,

    /// <summary>Input of plotters and cutting machines.</summary>
    Plot = 512,
}
