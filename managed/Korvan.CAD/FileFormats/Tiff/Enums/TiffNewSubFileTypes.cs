using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Relation of a page to the others; the values of tag 254.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffNewSubFileTypes
{
    /// <summary>A full-resolution image.</summary>
    FileTypeDefault = 0,

    /// <summary>A reduced-resolution version of another image.</summary>
    FileTypeReducedImage = 1,

    /// <summary>A page of a multi-page document.</summary>
    FileTypePage = 2,

    /// <summary>A transparency mask of another image.</summary>
    FileTypeMask = 4,
}
