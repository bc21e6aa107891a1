using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>How the folders of <see cref="LoadOptions.CustomFontFolders"/> are used.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CustomFontFolderOptions
{
    /// <summary>The folders are searched before the fonts of the system.</summary>
    BeforeSystem = 0,

    /// <summary>The folders are searched after the fonts of the system.</summary>
    AfterSystem = 1,

    /// <summary>The folders alone are searched.</summary>
    Only = 2,
}
