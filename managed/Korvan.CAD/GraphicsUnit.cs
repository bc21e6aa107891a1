using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The unit of lengths on a page.</summary>
[PythonEnum(EnumKind.Flag)]
public enum GraphicsUnit
{
    /// <summary>Units of the drawing.</summary>
    World = 0,

    /// <summary>Units of the device: pixels on screens, 1/100 inch on printers.</summary>
    Display = 1,

    /// <summary>Pixels of the device.</summary>
    Pixel = 2,

    /// <summary>Points of 1/72 inch.</summary>
    Point = 3,

    /// <summary>Inches.</summary>
    Inch = 4,

    /// <summary>Units of 1/300 inch.</summary>
    Document = 5,

    /// <summary>Millimetres.</summary>
    Millimeter = 6,
}
