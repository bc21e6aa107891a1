using System.Collections.Generic;
using System.Threading;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text;

/// <summary>The glyphs that a thread used so far, of each font at each size and angle.</summary>
internal sealed class GlyphUses
{
    private const int CharacterBits = 16;
    private const char AfterLatin = '\u0080';

    // What all threads used; as the cache is one, a glyph counts once.
    private static readonly Lock Gate = new();
    private static readonly Dictionary<SizedFont, int> AllFonts = [];
    private static readonly HashSet<long> AllGlyphs = [];

    private readonly Dictionary<(int Font, double Xx, double Yx, double Xy, double Yy), int> _fonts = [];
    private readonly HashSet<long> _glyphs = [];

    /// <summary>Adds the glyphs of a text. Returns what the cache may take more by them, in parts of pages: characters
    /// beyond ASCII may be in fonts of their own.</summary>
    /// <param name="font">The number of the font.</param>
    /// <param name="face">What the font is for all threads.</param>
    /// <param name="matrix">The map from ems to pixels; its translation does not matter.</param>
    /// <param name="text">The text.</param>
    internal long Add(int font, FontFaceKey face, in Affine2 matrix, string text)
    {
        if (GlyphCache.IsFull)
        {
            return 0;
        }

        long parts = 0;
        (int, double, double, double, double) key = (font, matrix.Xx, matrix.Yx, matrix.Xy, matrix.Yy);
        if (!_fonts.TryGetValue(key, out int number))
        {
            number = NumberOf(new SizedFont(face, matrix with { X0 = 0, Y0 = 0 }), ref parts);
            _fonts.Add(key, number);
        }

        foreach (char character in text)
        {
            long glyph = ((long)number << CharacterBits) | character;
            if (_glyphs.Add(glyph) && IsNew(glyph))
            {
                parts += character < AfterLatin ? GlyphCache.Glyph : GlyphCache.Page;
            }
        }

        return parts;
    }

    private static int NumberOf(in SizedFont font, ref long parts)
    {
        lock (Gate)
        {
            if (!AllFonts.TryGetValue(font, out int number))
            {
                number = AllFonts.Count;
                AllFonts.Add(font, number);
                parts += GlyphCache.Page;
            }

            return number;
        }
    }

    private static bool IsNew(long glyph)
    {
        lock (Gate)
        {
            return AllGlyphs.Add(glyph);
        }
    }

    private readonly record struct SizedFont(FontFaceKey Face, Affine2 Matrix);
}

/// <summary>A font as fontconfig finds it: by its family and style, among the fonts of a configuration.</summary>
internal readonly record struct FontFaceKey(string Family, bool IsBold, bool IsItalic, nint Config);
