using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text.Strokes;

namespace Korvan.CAD.Rendering.Text;

/// <summary>Fonts of folders that a caller names. They are known to one text engine alone, not to the
/// process.</summary>
internal sealed class FontFolders : IDisposable
{
    private static readonly EnumerationOptions TopOnly = new() { IgnoreInaccessible = true };
    private static readonly EnumerationOptions WholeTree = new()
    {
        IgnoreInaccessible = true,
        RecurseSubdirectories = true,
        MaxRecursionDepth = 32,
    };

    private readonly Dictionary<string, string> _families = new(StringComparer.OrdinalIgnoreCase);

    private readonly HashSet<string> _names = new(StringComparer.OrdinalIgnoreCase);

    private readonly NativeHandle _config;

    private FontFolders(bool withSystem) => _config = Fontconfig.NewConfig(withSystem);

    /// <summary>Gets the fonts that an engine knows, as fontconfig has them.</summary>
    internal nint Config => _config.Pointer;

    /// <summary>The fonts that the options name, or null when they name no folder.</summary>
    internal static FontFolders? Of(LoadOptions options, StrokeFaces strokes)
    {
        if (options.CustomFontFolders.Length == 0)
        {
            return null;
        }

        NativeLibraries.Require();
        var folders = new FontFolders(
            (options.CustomFontFolderOptions & CustomFontFolderOptions.IgnoreSystemFonts) == 0);
        try
        {
            folders.Fill(options, strokes);
            return folders;
        }
        catch
        {
            folders.Dispose();
            throw;
        }
    }

    /// <summary>A list of families; where the first is the name of a file of the folders, its family instead.</summary>
    internal string Resolve(string families)
    {
        int end = families.IndexOf(',', StringComparison.Ordinal);
        string first = end < 0 ? families : families[..end];
        return _families.TryGetValue(first.Trim(), out string? family) ? family + "," + families : families;
    }

    /// <summary>Determines whether the folders have a family, or a file of its name.</summary>
    internal bool Knows(string family) => _families.ContainsKey(family) || _names.Contains(family);

    public void Dispose()
    {
        _config.Dispose();
    }

    private void Fill(LoadOptions options, StrokeFaces strokes)
    {
        bool deep = (options.CustomFontFolderOptions & CustomFontFolderOptions.IncludeSubfolders) != 0;
        HashSet<string> files = new(StringComparer.OrdinalIgnoreCase);
        int compiled = 0;
        foreach (string folder in options.CustomFontFolders)
        {
            AddFolder(folder, deep ? WholeTree : TopOnly, files);
            compiled += strokes.AddFolder(folder, deep ? WholeTree : TopOnly);
        }

        bool isAlone = (options.CustomFontFolderOptions & CustomFontFolderOptions.IgnoreSystemFonts) != 0;
        if (files.Count == 0 && (compiled == 0 || isAlone))
        {
            throw new RenderException(
                $"There are no fonts in the custom folders {string.Join(", ", options.CustomFontFolders)}"
                + (deep ? "." : "; folders within them are searched with IncludeSubfolders."));
        }

        foreach ((string file, string family) in Fontconfig.ListFonts(Config))
        {
            if (files.Contains(file))
            {
                _names.Add(family);
                _families.TryAdd(Path.GetFileNameWithoutExtension(file), family);
            }
        }
    }

    private void AddFolder(string folder, EnumerationOptions search, HashSet<string> files)
    {
        if (!Directory.Exists(folder))
        {
            throw new RenderException($"The custom folder of fonts '{folder}' does not exist.");
        }

        foreach (string file in Directory.EnumerateFiles(folder, "*", search))
        {
            bool isFont = Path.GetExtension(file).ToLowerInvariant() is ".ttf" or ".otf" or ".ttc" or ".pfb";
            if (isFont && Fontconfig.AddFile(Config, file))
            {
                files.Add(Path.GetFileName(file));
            }
        }
    }
}
