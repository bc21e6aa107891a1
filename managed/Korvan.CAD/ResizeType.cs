using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Resampling filters for resizing.</summary>
[PythonEnum(EnumKind.Flag)]
public enum ResizeType
{
    /// <summary>Nearest neighbour: fast, with jagged edges; no new colours.</summary>
    NearestNeighbour = 0,

    /// <summary>Bilinear.</summary>
    Bilinear = 1,

    /// <summary>Box: the mean of the pixels that fall into one; for reduction.</summary>
    Box = 2,

    /// <summary>Cubic B-spline: smooth, somewhat blurred.</summary>
    CubicBSpline = 3,

    /// <summary>Catmull-Rom spline (E. Catmull and R. Rom, 1974): sharp.</summary>
    CatmullRom = 4,

    /// <summary>Cubic of D. Mitchell and A. Netravali (1988) with B = C = 1/3.</summary>
    Mitchell = 5,

    /// <summary>Bell: quadratic B-spline.</summary>
    Bell = 6,

    /// <summary>Hermite: cubic without overshoot.</summary>
    Hermite = 7,

    /// <summary>Lanczos: windowed sinc of three lobes; sharp, best for photographs.</summary>
    Lanczos = 8,

    /// <summary>Box for less than half the size, bilinear for smaller, Catmull-Rom for larger.</summary>
    Adaptive = 9,

    /// <summary>No scaling: the image stays centred and is cropped or gets a border.</summary>
    Centered = 10,

    /// <summary>No scaling: the image stays in the upper left corner and is cropped or gets a border.</summary>
    UpperLeft = 11,
}
