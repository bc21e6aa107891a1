using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>What is stored of samples before LZW or Deflate; the values of tag 317.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPredictor
{
    /// <summary>The samples themselves.</summary>
    None = 1,

    /// <summary>Differences to the pixel at the left.</summary>
    Horizontal = 2,
}
