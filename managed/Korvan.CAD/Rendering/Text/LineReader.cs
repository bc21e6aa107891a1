using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>Reads the glyphs of a line that pango laid out.</summary>
internal static unsafe class LineReader
{
    /// <summary>Reads a line; <paramref name="unit"/> is an em in pango units.</summary>
    internal static ShapedLine Read(nint line, string text, double unit, FontUses fonts)
    {
        List<ShapedRun> runs = [];
        byte[] utf8 = Encoding.UTF8.GetBytes(text);
        int[]? indices = utf8.Length == text.Length ? null : CharacterIndices(utf8);
        double x = 0;
        for (ListNode* node = ((PangoLayoutLine*)line)->Runs; node != null; node = node->Next)
        {
            var item = (PangoGlyphItem*)node->Data;
            x += item->StartOffsetX / unit;
            ShapedGlyph[] glyphs = ReadRun(item, indices, unit, ref x);
            x += item->EndOffsetX / unit;
            if (glyphs.Length > 0)
            {
                runs.Add(new ShapedRun(fonts.Of(item->Item->Font), glyphs));
            }
        }

        return new ShapedLine(text, [.. runs], x);
    }

    private static ShapedGlyph[] ReadRun(PangoGlyphItem* item, int[]? indices, double unit, ref double x)
    {
        PangoGlyphString* source = item->Glyphs;
        var glyphs = new ShapedGlyph[source->Count];
        int used = 0;
        for (int i = 0; i < source->Count; i++)
        {
            PangoGlyphInfo info = source->Glyphs[i];
            if (info.Glyph != PangoGlyphInfo.Empty)
            {
                (int start, int length, bool alone) = Cluster(item, i, indices);
                glyphs[used++] = new ShapedGlyph(
                    info.Glyph, (float)(x + (info.OffsetX / unit)), (float)((-info.OffsetY + item->OffsetY) / unit),
                    (float)(info.Width / unit), start, length, alone);
            }

            x += info.Width / unit;
        }

        return used == glyphs.Length ? glyphs : glyphs[..used];
    }

    /// <summary>The part of the text that the cluster of a glyph shows, for its first glyph in the order of the
    /// text.</summary>
    private static (int Start, int Length, bool Alone) Cluster(PangoGlyphItem* item, int at, int[]? indices)
    {
        PangoGlyphString* glyphs = item->Glyphs;
        int cluster = glyphs->Clusters[at];
        bool backwards = (item->Item->Level & 1) != 0;
        int step = backwards ? -1 : 1;
        int end = item->Item->Length;
        for (int k = at + step; k >= 0 && k < glyphs->Count; k += step)
        {
            if (glyphs->Clusters[k] != cluster)
            {
                end = glyphs->Clusters[k];
                break;
            }
        }

        bool sharesLeft = at > 0 && glyphs->Clusters[at - 1] == cluster;
        bool sharesRight = at + 1 < glyphs->Count && glyphs->Clusters[at + 1] == cluster;
        int from = item->Item->Offset + cluster;
        int to = item->Item->Offset + Math.Max(end, cluster);
        if (indices != null)
        {
            (from, to) = (indices[from], indices[to]);
        }

        return sharesLeft ? (from, 0, false) : (from, to - from, !sharesRight);
    }

    /// <summary>For each byte of UTF-8, the character of the string that it is in.</summary>
    private static int[] CharacterIndices(byte[] utf8)
    {
        var indices = new int[utf8.Length + 1];
        int character = 0;
        for (int i = 0; i < utf8.Length; i++)
        {
            indices[i] = character;
            bool last = i + 1 == utf8.Length || (utf8[i + 1] & 0xC0) != 0x80;
            if (last)
            {
                int start = i;
                while (start > 0 && (utf8[start] & 0xC0) == 0x80)
                {
                    start--;
                }

                character += i - start == 3 ? 2 : 1;
            }
        }

        indices[utf8.Length] = character;
        return indices;
    }
}
