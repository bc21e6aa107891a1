using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions.SvgOptionsParameters;

/// <summary>The format of the pictures in a scalable graphic.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SvgImageType
{
    /// <summary>Portable network graphics.</summary>
    Png = 0,

    /// <summary>JPEG.</summary>
    Jpeg = 1,

    /// <summary>Windows bitmap.</summary>
    Bmp = 2,
}
