using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How an image is dithered to a palette.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DitheringMethod
{
    /// <summary>None: each pixel takes the nearest colour.</summary>
    Threshold = 0,

    /// <summary>Ordered dithering with a matrix of 8 × 8 thresholds (B. Bayer, 1973).</summary>
    Ordered = 1,

    /// <summary>Floyd-Steinberg error diffusion to four neighbours (R. Floyd and L. Steinberg, 1976).</summary>
    FloydSteinberg = 2,

    /// <summary>Atkinson error diffusion: three quarters of the error to six neighbours; clean whites.</summary>
    Atkinson = 3,

    /// <summary>Error diffusion to twelve neighbours (J. Jarvis, C. Judice and W. Ninke, 1976): smooth and
    /// slow.</summary>
    JarvisJudiceNinke = 4,
}
