using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a raster image is vectorized; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum VectorizationMethod
{
    /// <summary>Not at all: it is loaded as an image.</summary>
    None = 0,

    /// <summary>By the outlines of dark areas, as closed polylines; holes have their own outlines.</summary>
    Contour = 1,

    /// <summary>By the centre lines of strokes, as polylines with line weights; for scanned drawings.</summary>
    PaperToCad = 2,
}
