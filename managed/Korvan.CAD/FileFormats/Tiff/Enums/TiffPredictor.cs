using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Prediction applied before LZW or Deflate; the values of tag 317.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffPredictor
{
    /// <summary>None: the samples themselves.</summary>
    None = 1,

    /// <summary>Horizontal differences: to the pixel at the left.</summary>
    Horizontal = 2,
}
