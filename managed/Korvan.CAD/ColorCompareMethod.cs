using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the distance of two colours is measured.</summary>
[PythonEnum(EnumKind.Integer)]
public enum ColorCompareMethod
{
    /// <summary>Straight distance in red, green, blue and opacity.</summary>
    Euclidean = 0,

    /// <summary>Distance with the channels weighted as the eye takes them (the red mean of T. Riemersma).</summary>
    Weighted = 1,

    /// <summary>Difference of lightness alone (ITU-R BT.601).</summary>
    Luminance = 2,
}
