using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>The format of images in an SVG document.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SvgImageType
{
    /// <summary>PNG.</summary>
    Png = 0,

    /// <summary>JPEG.</summary>
    Jpeg = 1,

    /// <summary>Windows bitmap.</summary>
    Bmp = 2,
}
