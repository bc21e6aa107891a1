using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Png;

/// <summary>Filter of a row before compression (ISO/IEC 15948, clause 9).</summary>
[PythonEnum(EnumKind.Integer)]
public enum PngFilterType
{
    /// <summary>None: the bytes themselves.</summary>
    None = 0,

    /// <summary>Horizontal differences: to the pixel at the left.</summary>
    Sub = 1,

    /// <summary>Up: differences from the row above.</summary>
    Up = 2,

    /// <summary>Average: differences from the mean of left and above.</summary>
    Average = 3,

    /// <summary>Paeth: differences from the best predictor of left, above and upper left.</summary>
    Paeth = 4,

    /// <summary>For each row the filter with the smallest sum of absolute differences.</summary>
    Adaptive = 5,
}
