using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the distance of two colours is measured.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorCompareMethod
{
    /// <summary>Euclidean distance in RGB and alpha.</summary>
    Euclidean = 0,

    /// <summary>Distance with perceptually weighted channels (the "redmean" of T. Riemersma).</summary>
    Weighted = 1,

    /// <summary>Difference of luma (ITU-R BT.601).</summary>
    Luminance = 2,
}
