using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>A node of a list (GSList).</summary>
[StructLayout(LayoutKind.Sequential)]
internal unsafe struct ListNode
{
    public void* Data;
    public ListNode* Next;
}

/// <summary>A line of a layout, as far as it is read.</summary>
[StructLayout(LayoutKind.Sequential)]
internal unsafe struct PangoLayoutLine
{
    public nint Layout;
    public int StartIndex;
    public int Length;
    public ListNode* Runs;
}

/// <summary>Characters of one font, script and direction with their glyphs.</summary>
[StructLayout(LayoutKind.Sequential)]
internal unsafe struct PangoGlyphItem
{
    public PangoItem* Item;
    public PangoGlyphString* Glyphs;
    public int OffsetY;
    public int StartOffsetX;
    public int EndOffsetX;
}

/// <summary>A range of bytes of a text, and how it is shaped.</summary>
[StructLayout(LayoutKind.Sequential)]
internal struct PangoItem
{
    public int Offset;
    public int Length;
    public int CharacterCount;
    public nint ShapeEngine;
    public nint LanguageEngine;
    public nint Font;
    public byte Level;
    public byte Gravity;
    public byte Flags;
    public byte Script;
}

/// <summary>Glyphs from left to right; each cluster is the offset of its first byte in the item.</summary>
[StructLayout(LayoutKind.Sequential)]
internal unsafe struct PangoGlyphString
{
    public int Count;
    public PangoGlyphInfo* Glyphs;
    public int* Clusters;
    public int Capacity;
}

/// <summary>A glyph with its advance and its offset, in pango units.</summary>
[StructLayout(LayoutKind.Sequential)]
internal struct PangoGlyphInfo
{
    /// <summary>No glyph, as for a space that is not shown.</summary>
    internal const uint Empty = 0x0FFF_FFFF;

    /// <summary>Set where no font has the character.</summary>
    internal const uint Unknown = 0x1000_0000;

    public uint Glyph;
    public int Width;
    public int OffsetX;
    public int OffsetY;
    public uint Attributes;
}
