using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The antialiasing and hinting of text.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TextRenderingHint
{
    /// <summary>The default of the device.</summary>
    SystemDefault = 0,

    /// <summary>Without antialiasing, with hinting.</summary>
    SingleBitPerPixelGridFit = 1,

    /// <summary>Without antialiasing.</summary>
    SingleBitPerPixel = 2,

    /// <summary>With antialiasing and hinting.</summary>
    AntiAliasGridFit = 3,

    /// <summary>With antialiasing.</summary>
    AntiAlias = 4,

    /// <summary>With subpixel antialiasing.</summary>
    ClearTypeGridFit = 5,
}
