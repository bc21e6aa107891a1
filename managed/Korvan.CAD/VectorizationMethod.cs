using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How lines and areas are found in a picture; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum VectorizationMethod
{
    /// <summary>They are not: the picture stays a picture.</summary>
    None = 0,

    /// <summary>Outlines around what is dark, as closed polylines; holes have outlines of their own.</summary>
    Contour = 1,

    /// <summary>Middle lines of strokes, as polylines with the weight of the stroke: for scanned drawings.</summary>
    PaperToCad = 2,
}
