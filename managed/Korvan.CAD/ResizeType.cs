using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How pixels are found when a picture changes its size.</summary>
[PythonEnum(EnumKind.Flag)]
public enum ResizeType
{
    /// <summary>The nearest pixel: fast, with steps; no new colours.</summary>
    NearestNeighbour = 0,

    /// <summary>Linear between neighbours.</summary>
    Bilinear = 1,

    /// <summary>The mean of the pixels that fall into one: for making pictures smaller.</summary>
    Box = 2,

    /// <summary>Cubic B-spline: smooth, somewhat blurred.</summary>
    CubicBSpline = 3,

    /// <summary>Cubic through the pixels (E. Catmull and R. Rom, 1974): sharp.</summary>
    CatmullRom = 4,

    /// <summary>The cubic of D. Mitchell and A. Netravali, 1988, with B = C = 1/3.</summary>
    Mitchell = 5,

    /// <summary>Quadratic B-spline.</summary>
    Bell = 6,

    /// <summary>Cubic without overshoot.</summary>
    Hermite = 7,

    /// <summary>Windowed sinc of three lobes: sharp, the best for photographs.</summary>
    Lanczos = 8,

    /// <summary>Box for less than half the size, bilinear for smaller, Catmull-Rom for larger.</summary>
    Adaptive = 9,

    /// <summary>No scaling: the picture stays in the middle, is cut or gets a border.</summary>
    Centered = 10,

    /// <summary>No scaling: the picture stays in the upper left corner, is cut or gets a border.</summary>
    UpperLeft = 11,
}
