using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How a picture is brought to few colours.</summary>
[PythonEnum(EnumKind.Integer)]
public enum DitheringMethod
{
    /// <summary>Each pixel takes the nearest colour; no pattern.</summary>
    Threshold = 0,

    /// <summary>A regular pattern of 8 × 8 thresholds (B. Bayer, 1973).</summary>
    Ordered = 1,

    /// <summary>The error goes to the four next neighbours (R. Floyd and L. Steinberg, 1976).</summary>
    FloydSteinberg = 2,

    /// <summary>Three quarters of the error are spread over six neighbours: light, with clean whites.</summary>
    Atkinson = 3,

    /// <summary>The error is spread over twelve neighbours (1976): smooth and slow.</summary>
    JarvisJudiceNinke = 4,
}
