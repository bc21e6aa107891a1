using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The kind of content that a file format carries.</summary>
[PythonEnum(EnumKind.Flag)]
public enum FileFormatCategory
{
    /// <summary>A drawing.</summary>
    Cad = 0,

    /// <summary>A building model.</summary>
    Bim = 1,

    /// <summary>Raster images.</summary>
    Bitmap = 2,

    /// <summary>Vector graphics.</summary>
    Vector = 3,
}
