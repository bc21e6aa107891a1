using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Png;

/// <summary>What of a line is stored before it is compressed (ISO/IEC 15948).</summary>
[PythonEnum(EnumKind.Integer)]
public enum PngFilterType
{
    /// <summary>The bytes themselves.</summary>
    None = 0,

    /// <summary>Differences to the pixel at the left.</summary>
    Sub = 1,

    /// <summary>Differences to the line above.</summary>
    Up = 2,

    /// <summary>Differences to the mean of both.</summary>
    Average = 3,

    /// <summary>Differences to the best guess from left, above and upper left.</summary>
    Paeth = 4,

    /// <summary>For each line the filter whose differences are smallest in sum.</summary>
    Adaptive = 5,
}
