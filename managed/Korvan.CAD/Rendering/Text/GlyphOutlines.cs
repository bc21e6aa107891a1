using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>The outline of a glyph in ems of its run, y down from the baseline.</summary>
internal sealed record GlyphOutline(int Number, PathBuffer Path);

/// <summary>A glyph of a run, by the number of its outline, and its origin in ems, y down from the baseline.</summary>
internal sealed record PlacedGlyph(int Number, double X, double Y);

/// <summary>Takes runs of text apart into glyphs whose outlines are found once. Collections hold classes alone: those
/// of structures would be compiled at the first use, which the first document waits for.</summary>
internal sealed unsafe partial class GlyphOutlines : IDisposable
{
    private const int MaxCachedRuns = 50_000;

    /// <summary>The number of glyphs that show nothing.</summary>
    private const int Blank = -1;

    private readonly TextEngine _engine;
    private readonly Dictionary<RunKey, PlacedGlyph[]> _runs = [];
    private readonly List<FontGlyphs> _fonts = [];
    private readonly NativeHandle _context;
    private int _count;

    internal GlyphOutlines(TextEngine engine)
    {
        _engine = engine;
        nint recording = Cairo.RecordingSurfaceCreate(Cairo.ContentColorAlpha, null);
        using var surface = new NativeHandle(recording, &Cairo.SurfaceDestroy);
        _context = new NativeHandle(Cairo.Create(surface.Pointer), &GlyphCache.Destroy);
    }

    /// <summary>Returns the glyphs of a run that show something. Outlines that are new are added to a list.</summary>
    internal PlacedGlyph[] Of(in TextRun run, List<GlyphOutline> added)
    {
        var key = new RunKey(run.Font, run.Text, run.LetterSpacing);
        if (!_runs.TryGetValue(key, out PlacedGlyph[]? placed))
        {
            placed = Shape(run, added);
            if (_runs.Count >= MaxCachedRuns)
            {
                _runs.Clear();
            }

            _runs.Add(key, placed);
        }

        return placed;
    }

    public void Dispose() => _context.Dispose();

    private PlacedGlyph[] Shape(in TextRun run, List<GlyphOutline> added)
    {
        var placed = new List<PlacedGlyph>();
        foreach (ShapedRun part in _engine.Line(run).Runs)
        {
            foreach (ShapedGlyph glyph in part.Glyphs)
            {
                if (glyph.IsUnknown)
                {
                    return [new PlacedGlyph(Whole(run, added), 0, 0)]; // boxes with the code point are more than glyphs
                }

                int number = NumberOf(part.Font.Font, glyph.Glyph, added);
                if (number != Blank)
                {
                    placed.Add(new PlacedGlyph(number, glyph.X, -glyph.Y));
                }
            }
        }

        return [.. placed];
    }

    private int NumberOf(nint font, uint glyph, List<GlyphOutline> added)
    {
        ref int number = ref FontOf(font).NumberOf((int)glyph);
        if (number == 0)
        {
            var path = new PathBuffer();
            Trace(font, glyph, path);
            number = path.IsEmpty ? Blank : Add(path, added);
        }

        return number;
    }

    // The engine keeps its fonts, so that an address is that of one font.
    private FontGlyphs FontOf(nint address)
    {
        foreach (FontGlyphs known in _fonts)
        {
            if (known.Address == address)
            {
                return known;
            }
        }

        var font = new FontGlyphs(address);
        _fonts.Add(font);
        return font;
    }

    private void Trace(nint font, uint glyph, PathBuffer path)
    {
        var native = new CairoGlyph { Index = glyph };
        nint cr = _context.Pointer;
        using GlyphCache.Scope scope = GlyphCache.Use(0);
        Cairo.NewPath(cr);
        SetScaledFont(cr, Pango.CairoFontGetScaledFont(font));
        GlyphPath(cr, &native, 1);
        const double em = 1 / TextShaper.EmSize;
        CairoPaths.Append(cr, new Affine2(em, 0, 0, em, 0, 0), path);
    }

    /// <summary>Makes one outline of a whole run.</summary>
    private int Whole(in TextRun run, List<GlyphOutline> added)
    {
        var path = new PathBuffer();
        _engine.AddOutline(run, new Affine2(1, 0, 0, -1, 0, 0), path);
        return Add(path, added);
    }

    private int Add(PathBuffer path, List<GlyphOutline> added)
    {
        added.Add(new GlyphOutline(++_count, path));
        return _count;
    }

    private sealed record RunKey(int Font, string Text, double Spacing);

    /// <summary>The numbers of the outlines of a font by its glyphs; 0 for those that are not known yet.</summary>
    private sealed class FontGlyphs(nint address)
    {
        private int[] _numbers = new int[256];

        internal nint Address { get; } = address;

        internal ref int NumberOf(int glyph)
        {
            if (glyph >= _numbers.Length)
            {
                Array.Resize(ref _numbers, Math.Max(glyph + 1, 2 * _numbers.Length));
            }

            return ref _numbers[glyph];
        }
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct CairoGlyph
    {
        public nuint Index;
        public double X;
        public double Y;
    }

    [LibraryImport(Cairo.Library, EntryPoint = "cairo_set_scaled_font")]
    private static partial void SetScaledFont(nint cr, nint font);

    [LibraryImport(Cairo.Library, EntryPoint = "cairo_glyph_path")]
    private static partial void GlyphPath(nint cr, CairoGlyph* glyphs, int count);
}
