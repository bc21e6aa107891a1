using System.Collections.Generic;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>A glyph of a shaped line: its place is that of its origin, in ems from the start of the baseline, y up.
/// The first glyph of a cluster covers a range of the text, the others none.</summary>
internal readonly record struct ShapedGlyph(
    uint Glyph, float X, float Y, float Advance, int TextStart, int TextLength, bool IsAlone)
{
    /// <summary>Gets whether no font has the character, so that a box is drawn.</summary>
    internal bool IsUnknown => (Glyph & PangoGlyphInfo.Unknown) != 0;
}

/// <summary>Glyphs of one font, from left to right.</summary>
internal sealed record ShapedRun(FontUse Font, ShapedGlyph[] Glyphs)
{
    /// <summary>Gets whether the font has any of the characters.</summary>
    internal bool HasGlyphs => System.Array.Exists(Glyphs, static glyph => !glyph.IsUnknown);
}

/// <summary>A run of text as glyphs.</summary>
internal sealed record ShapedLine(string Text, ShapedRun[] Runs, double Advance)
{
    /// <summary>Gets or sets the box of the outlines in ems, y up from the baseline; null where nobody asked.</summary>
    internal Bounds2? Ink { get; set; }

    /// <summary>Gets the number of glyphs that no font has.</summary>
    internal int UnknownGlyphs
    {
        get
        {
            int count = 0;
            foreach (ShapedRun run in Runs)
            {
                foreach (ShapedGlyph glyph in run.Glyphs)
                {
                    count += glyph.IsUnknown ? 1 : 0;
                }
            }

            return count;
        }
    }
}

/// <summary>A font as text uses it: a face, and what is done to its outlines. It lives as long as its shaper.</summary>
internal sealed record FontUse(nint Font, nint Face, string Name, Affine2 Matrix, bool IsEmboldened);

/// <summary>Fonts by the objects that pango has for them, which are kept so that no other gets the place of one.
/// </summary>
internal sealed unsafe class FontUses : System.IDisposable
{
    private readonly Dictionary<long, FontUse> _uses = [];
    private readonly List<NativeHandle> _fonts = [];

    internal FontUse Of(nint font)
    {
        if (!_uses.TryGetValue(font, out FontUse? use))
        {
            _fonts.Add(new NativeHandle(Pango.Reference(font), &GlyphCache.Unref));
            nint pattern = Pango.FcFontGetPattern(font);
            nint face = HarfBuzz.FontGetFace(Pango.FontGetHarfBuzz(font));
            use = new FontUse(font, face, Fontconfig.NameOf(pattern) ?? "Font", Fontconfig.MatrixOf(pattern),
                Fontconfig.IsEmboldened(pattern));
            _uses.Add(font, use);
        }

        return use;
    }

    public void Dispose()
    {
        _fonts.ForEach(static font => font.Dispose());
        _fonts.Clear();
        _uses.Clear();
    }
}
