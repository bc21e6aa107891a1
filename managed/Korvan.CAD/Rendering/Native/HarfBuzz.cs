using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>The part of HarfBuzz's function tables that reads fonts and makes subsets of them.</summary>
internal static unsafe partial class HarfBuzz
{
    internal const string Library = "libharfbuzz.so.0";
    internal const string SubsetLibrary = "libharfbuzz-subset.so.0";
    internal const string SubsetPackage = "libharfbuzz-subset0";

    /// <summary>Glyphs keep their numbers (HB_SUBSET_FLAGS_RETAIN_GIDS).</summary>
    internal const uint RetainGlyphs = 2;

    /// <summary>The set of tables that a subset leaves out (HB_SUBSET_SETS_DROP_TABLE_TAG).</summary>
    internal const int DroppedTables = 3;

    [LibraryImport(Library, EntryPoint = "hb_font_get_face")]
    internal static partial nint FontGetFace(nint font);

    [LibraryImport(Library, EntryPoint = "hb_font_create")]
    internal static partial nint FontCreate(nint face);

    [LibraryImport(Library, EntryPoint = "hb_font_destroy")]
    internal static partial void FontDestroy(nint font);

    [LibraryImport(Library, EntryPoint = "hb_font_get_glyph_h_advance")]
    internal static partial int FontGetGlyphAdvance(nint font, uint glyph);

    [LibraryImport(Library, EntryPoint = "hb_face_reference")]
    internal static partial nint FaceReference(nint face);

    [LibraryImport(Library, EntryPoint = "hb_face_destroy")]
    internal static partial void FaceDestroy(nint face);

    [LibraryImport(Library, EntryPoint = "hb_face_get_upem")]
    internal static partial uint FaceGetUnitsPerEm(nint face);

    [LibraryImport(Library, EntryPoint = "hb_face_get_glyph_count")]
    internal static partial uint FaceGetGlyphCount(nint face);

    [LibraryImport(Library, EntryPoint = "hb_face_reference_table")]
    private static partial nint FaceReferenceTable(nint face, uint tag);

    [LibraryImport(Library, EntryPoint = "hb_face_reference_blob")]
    private static partial nint FaceReferenceBlob(nint face);

    [LibraryImport(Library, EntryPoint = "hb_blob_get_data")]
    private static partial byte* BlobGetData(nint blob, out uint length);

    [LibraryImport(Library, EntryPoint = "hb_blob_destroy")]
    private static partial void BlobDestroy(nint blob);

    [LibraryImport(Library, EntryPoint = "hb_ot_var_has_data")]
    internal static partial int IsVariable(nint face);

    [LibraryImport(Library, EntryPoint = "hb_set_add")]
    internal static partial void SetAdd(nint set, uint value);

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_input_create_or_fail")]
    internal static partial nint SubsetInputCreate();

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_input_destroy")]
    internal static partial void SubsetInputDestroy(nint input);

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_input_glyph_set")]
    internal static partial nint SubsetInputGlyphs(nint input);

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_input_set")]
    internal static partial nint SubsetInputSet(nint input, int kind);

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_input_set_flags")]
    internal static partial void SubsetInputSetFlags(nint input, uint flags);

    [LibraryImport(SubsetLibrary, EntryPoint = "hb_subset_or_fail")]
    internal static partial nint Subset(nint face, nint input);

    /// <summary>The bytes of a table; none where the font lacks it.</summary>
    /// <param name="face">The font.</param>
    /// <param name="tag">The name of the table.</param>
    /// <param name="most">How many bytes are read at most: those of glyphs and their names are many.</param>
    internal static byte[] Table(nint face, string tag, int most = int.MaxValue)
    {
        using var blob = new NativeHandle(FaceReferenceTable(face, Tag(tag)), &BlobDestroy);
        return Bytes(blob, most);
    }

    /// <summary>Whether a font has a table that is not empty.</summary>
    internal static bool HasTable(nint face, string tag) => Table(face, tag, 1).Length > 0;

    /// <summary>The bytes of a whole font file.</summary>
    internal static byte[] File(nint face)
    {
        using var blob = new NativeHandle(FaceReferenceBlob(face), &BlobDestroy);
        return Bytes(blob);
    }

    internal static uint Tag(string tag) => ((uint)tag[0] << 24) | ((uint)tag[1] << 16) | ((uint)tag[2] << 8) | tag[3];

    private static byte[] Bytes(NativeHandle blob, int most = int.MaxValue)
    {
        byte* data = BlobGetData(blob.Pointer, out uint length);
        return data == null ? [] : new ReadOnlySpan<byte>(data, Math.Min(checked((int)length), most)).ToArray();
    }
}
