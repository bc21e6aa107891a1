using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the fonts of custom folders are used; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CustomFontFolderOptions
{
    /// <summary>The fonts of the folders themselves, beside those of the system.</summary>
    None = 0,

    /// <summary>The fonts of folders within the folders as well.</summary>
    IncludeSubfolders = 1,

    /// <summary>No fonts of the system: what the folders lack is drawn with what they have.</summary>
    IgnoreSystemFonts = 2,
}
