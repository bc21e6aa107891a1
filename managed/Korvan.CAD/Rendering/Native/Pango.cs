using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>A rectangle in pango units (1024 to a device unit), y down from the baseline.</summary>
[StructLayout(LayoutKind.Sequential)]
internal struct PangoRectangle
{
    public int X;
    public int Y;
    public int Width;
    public int Height;
}

/// <summary>The part of pango's, pangocairo's and gobject's function tables that text needs.</summary>
internal static unsafe partial class Pango
{
    internal const string Library = "libpango-1.0.so.0";
    internal const string CairoLibrary = "libpangocairo-1.0.so.0";
    internal const string FreeTypeLibrary = "libpangoft2-1.0.so.0";
    internal const string ObjectLibrary = "libgobject-2.0.so.0";
    internal const int Scale = 1024;

    [LibraryImport(ObjectLibrary, EntryPoint = "g_object_unref")]
    internal static partial void Unref(nint instance);

    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_font_map_new")]
    internal static partial nint CairoFontMapNew();

    [LibraryImport(FreeTypeLibrary, EntryPoint = "pango_fc_font_map_set_config")]
    internal static partial void FcFontMapSetConfig(nint fontMap, nint config);

    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_context_set_font_options")]
    internal static partial void CairoContextSetFontOptions(nint context, nint options);

    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_context_set_resolution")]
    internal static partial void CairoContextSetResolution(nint context, double dpi);

    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_show_layout_line")]
    internal static partial void CairoShowLayoutLine(nint cr, nint line);

    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_layout_line_path")]
    internal static partial void CairoLayoutLinePath(nint cr, nint line);

    [LibraryImport(Library, EntryPoint = "pango_font_map_create_context")]
    internal static partial nint FontMapCreateContext(nint fontMap);

    [LibraryImport(Library, EntryPoint = "pango_font_map_changed")]
    internal static partial void FontMapChanged(nint fontMap);

    [LibraryImport(Library, EntryPoint = "pango_context_set_round_glyph_positions")]
    internal static partial void ContextSetRoundGlyphPositions(nint context, int round);

    [LibraryImport(Library, EntryPoint = "pango_layout_new")]
    internal static partial nint LayoutNew(nint context);

    [LibraryImport(Library, EntryPoint = "pango_layout_set_text")]
    internal static partial void LayoutSetText(nint layout, byte* text, int length);

    [LibraryImport(Library, EntryPoint = "pango_layout_set_font_description")]
    internal static partial void LayoutSetFontDescription(nint layout, nint description);

    [LibraryImport(Library, EntryPoint = "pango_layout_set_single_paragraph_mode")]
    internal static partial void LayoutSetSingleParagraphMode(nint layout, int single);

    [LibraryImport(Library, EntryPoint = "pango_layout_set_auto_dir")]
    internal static partial void LayoutSetAutoDir(nint layout, int auto);

    [LibraryImport(Library, EntryPoint = "pango_layout_set_attributes")]
    internal static partial void LayoutSetAttributes(nint layout, nint attributes);

    [LibraryImport(Library, EntryPoint = "pango_layout_get_line_readonly")]
    internal static partial nint LayoutGetLine(nint layout, int line);

    [LibraryImport(Library, EntryPoint = "pango_layout_line_get_extents")]
    internal static partial void LayoutLineGetExtents(nint line, PangoRectangle* ink, PangoRectangle* logical);

    [LibraryImport(Library, EntryPoint = "pango_font_description_new")]
    internal static partial nint FontDescriptionNew();

    [LibraryImport(Library, EntryPoint = "pango_font_description_free")]
    internal static partial void FontDescriptionFree(nint description);

    [LibraryImport(
        Library, EntryPoint = "pango_font_description_set_family", StringMarshalling = StringMarshalling.Utf8)]
    internal static partial void FontDescriptionSetFamily(nint description, string family);

    [LibraryImport(Library, EntryPoint = "pango_font_description_set_weight")]
    internal static partial void FontDescriptionSetWeight(nint description, int weight);

    [LibraryImport(Library, EntryPoint = "pango_font_description_set_style")]
    internal static partial void FontDescriptionSetStyle(nint description, int style);

    [LibraryImport(Library, EntryPoint = "pango_font_description_set_stretch")]
    internal static partial void FontDescriptionSetStretch(nint description, int stretch);

    [LibraryImport(Library, EntryPoint = "pango_font_description_set_absolute_size")]
    internal static partial void FontDescriptionSetAbsoluteSize(nint description, double size);

    [LibraryImport(Library, EntryPoint = "pango_attr_list_new")]
    internal static partial nint AttrListNew();

    [LibraryImport(Library, EntryPoint = "pango_attr_list_unref")]
    internal static partial void AttrListUnref(nint list);

    [LibraryImport(Library, EntryPoint = "pango_attr_list_insert")]
    internal static partial void AttrListInsert(nint list, nint attribute);

    [LibraryImport(Library, EntryPoint = "pango_attr_letter_spacing_new")]
    internal static partial nint AttrLetterSpacingNew(int spacing);

    [LibraryImport(Library, EntryPoint = "pango_font_get_hb_font")]
    internal static partial nint FontGetHarfBuzz(nint font);

    [LibraryImport(FreeTypeLibrary, EntryPoint = "pango_fc_font_get_pattern")]
    internal static partial nint FcFontGetPattern(nint font);

    [LibraryImport(ObjectLibrary, EntryPoint = "g_object_ref")]
    internal static partial nint Reference(nint instance);

    /// <summary>Returns cairo's face of a font at its size, which the font owns.</summary>
    [LibraryImport(CairoLibrary, EntryPoint = "pango_cairo_font_get_scaled_font")]
    internal static partial nint CairoFontGetScaledFont(nint font);
}
