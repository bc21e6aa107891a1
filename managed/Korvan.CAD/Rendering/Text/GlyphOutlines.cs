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
internal readonly record struct PlacedGlyph(int Number, double X, double Y);

/// <summary>Takes runs of text apart into glyphs whose outlines are found once.</summary>
internal sealed unsafe partial class GlyphOutlines : IDisposable
{
    private const int MaxCachedRuns = 50_000;

    /// <summary>The number of glyphs that show nothing.</summary>
    private const int Blank = -1;

    private readonly TextEngine _engine;
    private readonly Dictionary<(nint Font, uint Glyph), int> _numbers = [];
    private readonly Dictionary<(int Font, string Text, double Spacing), PlacedGlyph[]> _runs = [];
    private readonly Dictionary<nint, NativeHandle> _fonts = [];
    private readonly NativeHandle _context;
    private int _count;

    internal GlyphOutlines(TextEngine engine)
    {
        _engine = engine;
        nint recording = Cairo.RecordingSurfaceCreate(Cairo.ContentColorAlpha, null);
        using var surface = new NativeHandle(recording, &Cairo.SurfaceDestroy);
        _context = new NativeHandle(Cairo.Create(surface.Pointer), &Cairo.Destroy);
    }

    /// <summary>Returns the glyphs of a run that show something. Outlines that are new are added to a list.</summary>
    internal PlacedGlyph[] Of(in TextRun run, List<GlyphOutline> added)
    {
        var key = (run.Font, run.Text, run.LetterSpacing);
        if (!_runs.TryGetValue(key, out PlacedGlyph[]? placed))
        {
            placed = PangoGlyphs.IsKnown ? Shape(run, added) : [new PlacedGlyph(Whole(run, added), 0, 0)];
            if (_runs.Count >= MaxCachedRuns)
            {
                _runs.Clear();
            }

            _runs.Add(key, placed);
        }

        return placed;
    }

    public void Dispose()
    {
        _context.Dispose();
        foreach (NativeHandle font in _fonts.Values)
        {
            font.Dispose();
        }
    }

    private PlacedGlyph[] Shape(in TextRun run, List<GlyphOutline> added)
    {
        PangoGlyph[] glyphs = PangoGlyphs.Of(_engine.ShapeLine(run));
        var placed = new List<PlacedGlyph>(glyphs.Length);
        foreach (PangoGlyph glyph in glyphs)
        {
            if (glyph.Index == PangoGlyphs.Empty)
            {
                continue;
            }

            if ((glyph.Index & PangoGlyphs.UnknownFlag) != 0)
            {
                return [new PlacedGlyph(Whole(run, added), 0, 0)]; // boxes with the code point are more than glyphs
            }

            int number = NumberOf(glyph, added);
            if (number != Blank)
            {
                placed.Add(new PlacedGlyph(number, glyph.X / TextEngine.UnitsPerEm, glyph.Y / TextEngine.UnitsPerEm));
            }
        }

        return [.. placed];
    }

    private int NumberOf(in PangoGlyph glyph, List<GlyphOutline> added)
    {
        if (!_numbers.TryGetValue((glyph.Font, glyph.Index), out int number))
        {
            if (!_fonts.ContainsKey(glyph.Font))
            {
                // An address is that of another font once the font is gone.
                _fonts.Add(glyph.Font, new NativeHandle(PangoGlyphs.Ref(glyph.Font), &Pango.Unref));
            }

            var path = new PathBuffer();
            Trace(glyph, path);
            number = path.IsEmpty ? Blank : Add(path, added);
            _numbers.Add((glyph.Font, glyph.Index), number);
        }

        return number;
    }

    private void Trace(in PangoGlyph glyph, PathBuffer path)
    {
        var native = new CairoGlyph { Index = glyph.Index };
        nint cr = _context.Pointer;
        Cairo.NewPath(cr);
        SetScaledFont(cr, PangoGlyphs.ScaledFontOf(glyph.Font));
        GlyphPath(cr, &native, 1);
        const double em = 1 / TextEngine.EmSize;
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
