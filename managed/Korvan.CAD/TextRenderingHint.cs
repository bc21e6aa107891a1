using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How edges of letters are smoothed.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TextRenderingHint
{
    /// <summary>As the device does by itself.</summary>
    SystemDefault = 0,

    /// <summary>Without smoothing, with hinting.</summary>
    SingleBitPerPixelGridFit = 1,

    /// <summary>Without smoothing.</summary>
    SingleBitPerPixel = 2,

    /// <summary>With smoothing and hinting.</summary>
    AntiAliasGridFit = 3,

    /// <summary>With smoothing.</summary>
    AntiAlias = 4,

    /// <summary>With smoothing in the parts of a pixel.</summary>
    ClearTypeGridFit = 5,
}
