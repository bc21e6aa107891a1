using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>One glyph of a shaped line: its font, its number there, and its origin in pango units, y down.</summary>
internal readonly record struct PangoGlyph(nint Font, uint Index, int X, int Y);

/// <summary>Walks over the glyphs of a line as pango's renderers do. The structures are public parts of pango 1.50 and
/// later.</summary>
internal static unsafe partial class PangoGlyphs
{
    /// <summary>A glyph that shows nothing.</summary>
    internal const uint Empty = 0x0FFFFFFF;

    /// <summary>Marks the code point of a character that no font has.</summary>
    internal const uint UnknownFlag = 0x10000000;

    private const int FirstVersion = 15000;

    [StructLayout(LayoutKind.Sequential)]
    private struct Line
    {
        public nint Layout;
        public int StartIndex;
        public int Length;
        public Link* Runs;
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct Link
    {
        public GlyphItem* Data;
        public Link* Next;
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct GlyphItem
    {
        public Item* Item;
        public GlyphString* Glyphs;
        public int YOffset;
        public int StartXOffset;
        public int EndXOffset;
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct Item
    {
        public int Offset;
        public int Length;
        public int CharacterCount;
        public nint ShapeEngine;
        public nint LanguageEngine;
        public nint Font;
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct GlyphString
    {
        public int Count;
        public GlyphInfo* Glyphs;
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct GlyphInfo
    {
        public uint Glyph;
        public int Width;
        public int XOffset;
        public int YOffset;
        public uint Attributes;
    }

    /// <summary>Gets whether the installed pango has these structures.</summary>
    internal static bool IsKnown { get; } = Version() >= FirstVersion;

    /// <summary>Returns the glyphs of a line.</summary>
    internal static PangoGlyph[] Of(nint line)
    {
        int count = 0;
        for (Link* link = ((Line*)line)->Runs; link is not null; link = link->Next)
        {
            count += link->Data->Glyphs->Count;
        }

        var glyphs = new PangoGlyph[count];
        int x = 0;
        int at = 0;
        for (Link* link = ((Line*)line)->Runs; link is not null; link = link->Next)
        {
            GlyphItem* item = link->Data;
            x += item->StartXOffset;
            foreach (ref readonly GlyphInfo glyph in new ReadOnlySpan<GlyphInfo>(
                item->Glyphs->Glyphs, item->Glyphs->Count))
            {
                glyphs[at++] = new PangoGlyph(
                    item->Item->Font, glyph.Glyph, x + glyph.XOffset, glyph.YOffset - item->YOffset);
                x += glyph.Width;
            }

            x += item->EndXOffset;
        }

        return glyphs;
    }

    /// <summary>Returns cairo's face of a font at its size, which the font owns.</summary>
    [LibraryImport(Pango.CairoLibrary, EntryPoint = "pango_cairo_font_get_scaled_font")]
    internal static partial nint ScaledFontOf(nint font);

    [LibraryImport(Pango.ObjectLibrary, EntryPoint = "g_object_ref")]
    internal static partial nint Ref(nint instance);

    [LibraryImport(Pango.Library, EntryPoint = "pango_version")]
    private static partial int Version();
}
