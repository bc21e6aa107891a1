using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;

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
    private static partial FontSet* FontList(nint config, nint pattern, nint objects);

    [LibraryImport(Library, EntryPoint = "FcFontSetDestroy")]
    private static partial void FontSetDestroy(FontSet* set);

    [LibraryImport(Library, EntryPoint = "FcPatternGetString", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int PatternGetString(nint pattern, string name, int n, out nint value);

    [LibraryImport(Library, EntryPoint = "FcConfigAppFontAddDir", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int ConfigAppFontAddDir(nint config, string folder);

    /// <summary>Makes the fonts of one more folder known to the process.</summary>
    internal static bool AddFolder(string folder) => ConfigAppFontAddDir(0, folder) != 0;

    /// <summary>Every installed font as file name (lower case, no folder) and family name.</summary>
    internal static List<(string File, string Family)> ListFonts()
    {
        var result = new List<(string, string)>();
        nint pattern = PatternCreate();
        nint objects = ObjectSetCreate();
        ObjectSetAdd(objects, "file");
        ObjectSetAdd(objects, "family");
        FontSet* set = FontList(0, pattern, objects);
        for (int i = 0; set != null && i < set->Count; i++)
        {
            string? file = GetString(set->Fonts[i], "file");
            string? family = GetString(set->Fonts[i], "family");
            if (file != null && family != null)
            {
                result.Add((Path.GetFileName(file).ToLowerInvariant(), family));
            }
        }

        if (set != null)
        {
            FontSetDestroy(set);
        }

        ObjectSetDestroy(objects);
        PatternDestroy(pattern);
        return result;
    }

    private static string? GetString(nint pattern, string name) =>
        PatternGetString(pattern, name, 0, out nint value) == 0 ? Marshal.PtrToStringUTF8(value) : null;
}
