using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>What a page is to the others; the values of tag 254.</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffNewSubFileTypes
{
    /// <summary>A picture of its own.</summary>
    FileTypeDefault = 0,

    /// <summary>A smaller version of another.</summary>
    FileTypeReducedImage = 1,

    /// <summary>A page of several.</summary>
    FileTypePage = 2,

    /// <summary>A mask of another.</summary>
    FileTypeMask = 4,
}
