using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>The colour mode of an SVG document.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SvgColorMode
{
    /// <summary>The colours of the drawing.</summary>
    Rgb = 0,

    /// <summary>Greyscale, with the same luminance.</summary>
    Grayscale = 1,

    /// <summary>Black, and white for colours as light as the background.</summary>
    BlackAndWhite = 2,
}
