using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the fonts of custom folders are used; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CustomFontFolderOptions
{
    /// <summary>The fonts directly in the folders, in addition to installed fonts.</summary>
    None = 0,

    /// <summary>The fonts in subfolders as well.</summary>
    IncludeSubfolders = 1,

    /// <summary>No installed fonts: fonts that the folders lack are replaced by others from the folders.</summary>
    IgnoreSystemFonts = 2,
}
