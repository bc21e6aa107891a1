using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Native;

/// <summary>Answers which families and font files are installed.</summary>
internal static unsafe partial class Fontconfig
{
    internal const string Library = "libfontconfig.so.1";

    [StructLayout(LayoutKind.Sequential)]
    private struct FontSet
    {
        public int Count;
        public int Capacity;
        public nint* Fonts;
    }

    [LibraryImport(Library, EntryPoint = "FcPatternCreate")]
    private static partial nint PatternCreate();

    [LibraryImport(Library, EntryPoint = "FcPatternDestroy")]
    private static partial void PatternDestroy(nint pattern);

    [LibraryImport(Library, EntryPoint = "FcObjectSetCreate")]
    private static partial nint ObjectSetCreate();

    [LibraryImport(Library, EntryPoint = "FcObjectSetAdd", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int ObjectSetAdd(nint set, string name);

    [LibraryImport(Library, EntryPoint = "FcObjectSetDestroy")]
    private static partial void ObjectSetDestroy(nint set);

    [LibraryImport(Library, EntryPoint = "FcFontList")]
    private static partial nint FontList(nint config, nint pattern, nint objects);

    [LibraryImport(Library, EntryPoint = "FcFontSetDestroy")]
    private static partial void FontSetDestroy(nint set);

    [LibraryImport(Library, EntryPoint = "FcPatternGetString", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternGetString(nint pattern, string name, int n, out nint value);

    [LibraryImport(Library, EntryPoint = "FcConfigAppFontAddFile", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int ConfigAppFontAddFile(nint config, string file);

    [LibraryImport(Library, EntryPoint = "FcConfigCreate")]
    private static partial nint ConfigCreate();

    [LibraryImport(Library, EntryPoint = "FcInitLoadConfigAndFonts")]
    private static partial nint InitLoadConfigAndFonts();

    [LibraryImport(Library, EntryPoint = "FcConfigParseAndLoad", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int ConfigParseAndLoad(nint config, string file, int complain);

    [LibraryImport(Library, EntryPoint = "FcConfigBuildFonts")]
    private static partial int ConfigBuildFonts(nint config);

    [LibraryImport(Library, EntryPoint = "FcConfigAppFontAddDir", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int ConfigAppFontAddDir(nint config, string folder);

    [LibraryImport(Library, EntryPoint = "FcConfigSetRescanInterval")]
    private static partial int ConfigSetRescanInterval(nint config, int seconds);

    [LibraryImport(Library, EntryPoint = "FcConfigSetCurrent")]
    private static partial int ConfigSetCurrent(nint config);

    [LibraryImport(Library, EntryPoint = "FcConfigDestroy")]
    private static partial void ConfigDestroy(nint config);

    [LibraryImport(Library, EntryPoint = "FcPatternAddString", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternAddString(nint pattern, string name, string value);

    [LibraryImport(Library, EntryPoint = "FcPatternAddInteger", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternAddInteger(nint pattern, string name, int value);

    [LibraryImport(Library, EntryPoint = "FcConfigSubstitute")]
    private static partial int ConfigSubstitute(nint config, nint pattern, int kind);

    [LibraryImport(Library, EntryPoint = "FcDefaultSubstitute")]
    private static partial void DefaultSubstitute(nint pattern);

    [LibraryImport(Library, EntryPoint = "FcFontMatch")]
    private static partial nint FontMatch(nint config, nint pattern, out int result);

    [LibraryImport(Library, EntryPoint = "FcPatternGetBool", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternGetBool(nint pattern, string name, int n, out int value);

    [LibraryImport(Library, EntryPoint = "FcPatternGetMatrix", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternGetMatrix(nint pattern, string name, int n, out double* value);

    /// <summary>Whether a font is to be made bolder than its outlines are.</summary>
    internal static bool IsEmboldened(nint pattern) =>
        PatternGetBool(pattern, "embolden", 0, out int value) == 0 && value != 0;

    /// <summary>The map that is applied to the glyphs of a font, as to make them oblique.</summary>
    internal static Affine2 MatrixOf(nint pattern) =>
        PatternGetMatrix(pattern, "matrix", 0, out double* m) == 0 && m != null
            ? new Affine2(m[0], m[2], m[1], m[3], 0, 0)
            : Affine2.Identity;

    /// <summary>The name of a font in PostScript, or that of its family; null where it states none.</summary>
    internal static string? NameOf(nint pattern) =>
        GetString(pattern, "postscriptname") ?? GetString(pattern, "family");

    /// <summary>Fonts that are known beside each other: those of the system, unless they are left out, and
    /// more.</summary>
    internal static NativeHandle NewConfig(bool withSystem) =>
        withSystem ? CarriedFonts.NewConfig() : new(ConfigCreate(), &ConfigDestroy);

    /// <summary>The configuration of the system, with its fonts.</summary>
    internal static NativeHandle LoadSystemConfig() => new(InitLoadConfigAndFonts(), &ConfigDestroy);

    /// <summary>The configuration that a file states, with its fonts.</summary>
    internal static NativeHandle LoadConfig(string file)
    {
        var config = new NativeHandle(ConfigCreate(), &ConfigDestroy);
        _ = ConfigParseAndLoad(config.Pointer, file, 1);
        _ = ConfigBuildFonts(config.Pointer);
        return config;
    }

    /// <summary>Makes a configuration that of the process. It is not loaded anew when fonts are installed, which would
    /// lose what was added to it.</summary>
    internal static void MakeCurrent(nint config)
    {
        _ = ConfigSetRescanInterval(config, 0);
        _ = ConfigSetCurrent(config);
    }

    /// <summary>Makes the fonts of a folder known; false where it has none.</summary>
    internal static bool AddFolder(nint config, string folder) => ConfigAppFontAddDir(config, folder) != 0;

    /// <summary>Makes one more font file known; false for what is no font.</summary>
    internal static bool AddFile(nint config, string file) => ConfigAppFontAddFile(config, file) != 0;

    /// <summary>The file of the font that stands in for the families of a list, or null when there is no
    /// font.</summary>
    internal static string? FileOf(nint config, string families, bool bold, bool italic)
    {
        const int boldWeight = 200, regularWeight = 80, italicSlant = 100;
        using var owner = new NativeHandle(PatternCreate(), &PatternDestroy);
        nint pattern = owner.Pointer;
        foreach (string family in families.Split(',', System.StringSplitOptions.TrimEntries))
        {
            PatternAddString(pattern, "family", family);
        }

        PatternAddInteger(pattern, "weight", bold ? boldWeight : regularWeight);
        PatternAddInteger(pattern, "slant", italic ? italicSlant : 0);
        _ = ConfigSubstitute(config, pattern, 0);
        DefaultSubstitute(pattern);
        using var match = new NativeHandle(FontMatch(config, pattern, out _), &PatternDestroy);
        return match.IsInvalid ? null : GetString(match.Pointer, "file");
    }

    /// <summary>Every font of a configuration (0 for that of the system) as file name (lower case, no folder) and
    /// family name.</summary>
    internal static List<(string File, string Family)> ListFonts(nint config = 0)
    {
        var result = new List<(string, string)>();
        using var pattern = new NativeHandle(PatternCreate(), &PatternDestroy);
        using var objects = new NativeHandle(ObjectSetCreate(), &ObjectSetDestroy);
        ObjectSetAdd(objects.Pointer, "file");
        ObjectSetAdd(objects.Pointer, "family");
        using var fonts = new NativeHandle(FontList(config, pattern.Pointer, objects.Pointer), &FontSetDestroy);
        var set = (FontSet*)fonts.Pointer;
        for (int i = 0; set != null && i < set->Count; i++)
        {
            string? file = GetString(set->Fonts[i], "file");
            string? family = GetString(set->Fonts[i], "family");
            if (file != null && family != null)
            {
                result.Add((Path.GetFileName(file).ToLowerInvariant(), family));
            }
        }

        return result;
    }

    private static string? GetString(nint pattern, string name) =>
        PatternGetString(pattern, name, 0, out nint value) == 0 ? Marshal.PtrToStringUTF8(value) : null;
}
