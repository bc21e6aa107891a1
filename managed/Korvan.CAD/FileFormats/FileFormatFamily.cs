using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats;

/// <summary>Formats that belong together; the values can be combined, to ask for several families.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FileFormatFamily
{
    /// <summary>No family.</summary>
    Undefined = 0,

    /// <summary>Pixels.</summary>
    Raster = 1,

    /// <summary>Pages for screens and printers: texts, shapes and pictures.</summary>
    Page = 2,

    /// <summary>Drawings in their binary form, and templates of them.</summary>
    Dwg = 4,

    /// <summary>Drawings in their interchange form.</summary>
    Dxf = 8,

    /// <summary>Design files.</summary>
    Dgn = 16,

    /// <summary>Published drawings.</summary>
    Dwf = 32,

    /// <summary>Building models.</summary>
    Ifc = 64,

    /// <summary>Bodies as faces.</summary>
    Mesh = 128,

    /// <summary>Bodies by exact surfaces.</summary>
    Solid = 256,

    /// <summary>What plotters and cutters are told.</summary>
    Plot = 512,
}
