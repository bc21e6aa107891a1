using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>Which colours a scalable graphic has.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SvgColorMode
{
    /// <summary>Those of the drawing.</summary>
    Rgb = 0,

    /// <summary>Shades of grey of the same lightness.</summary>
    Grayscale = 1,

    /// <summary>Black, and white for what is as light as the page.</summary>
    BlackAndWhite = 2,
}
