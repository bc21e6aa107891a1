using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>
/// Fonts of pango, and a layout that shapes one line at a time. To find a font takes longer than to draw a page of
/// text, so shapers with the fonts of the system are kept from one export to the next. A shaper belongs to one thread
/// at a time.
/// </summary>
internal sealed unsafe class TextShaper
{
    /// <summary>The size in device units at which everything is shaped; cairo's matrix brings it to the real
    /// one.</summary>
    internal const double EmSize = 256;

    /// <summary>The characters of one line that are shown; the rest counts as glyphs that are missing.</summary>
    internal const int MaxCharacters = 32_768;

    private const double PointsPerInch = 72;
    private const int BoldWeight = 700;
    private const int NormalWeight = 400;
    private const int ItalicStyle = 2;
    private const int HintMetricsOff = 1;
    private const double DefaultCapRatio = 0.7;
    private const int MaxBytesOnStack = 1024;

    /// <summary>A shaper that knows more fonts is not kept.</summary>
    private const int MaxFontsKept = 200;
    private const int MaxKept = 8;

    /// <summary>The characters of the lines that are remembered, which take a hundred bytes each.</summary>
    private const int MaxCharactersOfLines = 50_000;

    private static readonly Stack<TextShaper> Kept = new();
    private static int _keeper = ForkedProcess.Id;

    private readonly GlyphRendering _look;
    private readonly nint _config;
    private readonly Dictionary<FontSpec, int> _numbers = new(FontSpec.ByValue);
    private readonly List<ShaperFont> _fonts = [];
    private readonly FontUses _uses = new();
    private readonly GlyphUses _glyphs = new();
    private readonly NativeHandle _fontMap;
    private readonly NativeHandle _context;
    private readonly NativeHandle _layout;
    private int _charactersOfLines;
    private int _currentFont = -1;
    private string? _currentText;
    private double _currentSpacing;

    private TextShaper(GlyphRendering look, nint config)
    {
        (_look, _config) = (look, config);
        _fontMap = new NativeHandle(Pango.CairoFontMapNew(), &GlyphCache.Unref);
        if (config != 0)
        {
            Pango.FcFontMapSetConfig(_fontMap.Pointer, config);
        }

        _context = new NativeHandle(Pango.FontMapCreateContext(_fontMap.Pointer), &GlyphCache.Unref);
        Pango.CairoContextSetResolution(_context.Pointer, PointsPerInch);
        Pango.ContextSetRoundGlyphPositions(_context.Pointer, 0);
        using var options = new NativeHandle(Cairo.FontOptionsCreate(), &Cairo.FontOptionsDestroy);
        Cairo.FontOptionsSetHintStyle(options.Pointer, look.Hinting);
        Cairo.FontOptionsSetHintMetrics(options.Pointer, HintMetricsOff);
        Cairo.FontOptionsSetAntialias(options.Pointer, look.Antialias);
        Pango.CairoContextSetFontOptions(_context.Pointer, options.Pointer);
        _layout = new NativeHandle(Pango.LayoutNew(_context.Pointer), &GlyphCache.Unref);
        Pango.LayoutSetSingleParagraphMode(_layout.Pointer, 1);
        Pango.LayoutSetAutoDir(_layout.Pointer, 1);
    }

    /// <summary>Returns a shaper, which the caller has to release.</summary>
    /// <param name="look">How glyphs are rasterized.</param>
    /// <param name="config">The fonts, as fontconfig has them; 0 for those of the system.</param>
    /// <exception cref="DisplayList.RenderException">A shared library is missing.</exception>
    internal static TextShaper Get(GlyphRendering look, nint config)
    {
        NativeLibraries.Require();
        return (config == 0 ? TakeKept(look) : null) ?? new TextShaper(look, config);
    }

    /// <summary>Ends the use of the shaper.</summary>
    internal void Release()
    {
        if (_config != 0 || !TryKeep())
        {
            Dispose();
        }
    }

    /// <summary>Returns the number of a font.</summary>
    /// <param name="families">The families, of which the first one that is there counts.</param>
    /// <param name="isBold">Whether it is bold.</param>
    /// <param name="isItalic">Whether it is italic.</param>
    internal int Font(string families, bool isBold, bool isItalic)
    {
        var spec = new FontSpec(families, isBold, isItalic);
        if (!_numbers.TryGetValue(spec, out int font))
        {
            font = _fonts.Count;
            _fonts.Add(new ShaperFont(spec, Describe(families, isBold, isItalic)));
            _fonts[font].CapRatio = MeasureCapRatio(font);
            _numbers.Add(spec, font);
        }

        return font;
    }

    /// <summary>Returns the height of a capital letter as a share of the em.</summary>
    internal double CapRatio(int font) => _fonts[font].CapRatio;

    /// <summary>Returns the file of a font, or null when there is no font at all.</summary>
    internal string? FileOf(int font)
    {
        ShaperFont one = _fonts[font];
        if (!one.HasFile)
        {
            one.File = Fontconfig.FileOf(_config, one.Spec.Family, one.Spec.Bold, one.Spec.Italic);
            one.HasFile = true;
        }

        return one.File;
    }

    /// <summary>Returns the glyphs of a text. Lines are remembered: a page has the texts of the thumbnail that follows
    /// it.</summary>
    internal ShapedLine Line(int font, string text, double letterSpacing)
    {
        Dictionary<string, ShapedLine> lines = _fonts[font].Lines;
        string key = letterSpacing == 0 ? text : $"{letterSpacing:R}\0{text}";
        if (!lines.TryGetValue(key, out ShapedLine? line))
        {
            using GlyphCache.Scope scope = GlyphCache.Use(NewParts(font, text));
            line = LineReader.Read(Shape(font, text, letterSpacing), text, EmSize * Pango.Scale, _uses);
            _charactersOfLines += text.Length + 1;
            if (_charactersOfLines > MaxCharactersOfLines)
            {
                _fonts.ForEach(static one => one.Lines.Clear());
                _charactersOfLines = text.Length + 1;
            }

            lines.Add(key, line);
        }

        return line;
    }

    /// <summary>Returns what the cache of glyphs may take more by a text, in parts of pages.</summary>
    internal long NewParts(int font, string text) => _glyphs.Add(font, KeyOf(font), Affine2.Identity, text);

    /// <summary>Returns what a font is for all threads.</summary>
    internal FontFaceKey KeyOf(int font)
    {
        FontSpec spec = _fonts[font].Spec;
        return new FontFaceKey(spec.Family, spec.Bold, spec.Italic, _config);
    }

    /// <summary>Returns the box of the outlines of a text, in ems, y up from the baseline.</summary>
    internal Bounds2 InkOf(int font, string text, double letterSpacing)
    {
        PangoRectangle ink;
        using GlyphCache.Scope scope = GlyphCache.Use(NewParts(font, text));
        Pango.LayoutLineGetExtents(Shape(font, text, letterSpacing), &ink, null);
        const double em = Pango.Scale * EmSize;
        return ink.Width > 0 && ink.Height > 0
            ? Bounds2.Of(ink.X / em, -ink.Y / em, (ink.X + (double)ink.Width) / em, -(ink.Y + (double)ink.Height) / em)
            : Bounds2.Empty;
    }

    /// <summary>Returns pango's line of a text, which holds until the next one is shaped.</summary>
    internal nint Shape(int font, string text, double letterSpacing)
    {
        using GlyphCache.Scope scope = GlyphCache.Use(NewParts(font, text));
        if (font != _currentFont)
        {
            Pango.LayoutSetFontDescription(_layout.Pointer, _fonts[font].Description.Pointer);
            _currentFont = font;
        }

        if (letterSpacing != _currentSpacing)
        {
            SetSpacing(letterSpacing);
        }

        if (!ReferenceEquals(text, _currentText))
        {
            SetText(text);
        }

        return Pango.LayoutGetLine(_layout.Pointer, 0);
    }

    // The threads by which the kept ones look for fonts stay behind at a fork; so do those shapers.
    private static TextShaper? TakeKept(GlyphRendering look)
    {
        lock (Kept)
        {
            if (_keeper != ForkedProcess.Id)
            {
                Kept.Clear();
                _keeper = ForkedProcess.Id;
            }

            return Kept.TryPeek(out TextShaper? last) && last._look == look ? Kept.Pop() : null;
        }
    }

    private bool TryKeep()
    {
        lock (Kept)
        {
            if (_keeper != ForkedProcess.Id || Kept.Count == MaxKept || _fonts.Count > MaxFontsKept)
            {
                return false;
            }

            Kept.Push(this);
            return true;
        }
    }

    private void Dispose()
    {
        _fonts.ForEach(static font => font.Description.Dispose());
        _uses.Dispose();
        _layout.Dispose();
        _context.Dispose();
        _fontMap.Dispose();
    }

    private static NativeHandle Describe(string families, bool isBold, bool isItalic)
    {
        var owner = new NativeHandle(Pango.FontDescriptionNew(), &Pango.FontDescriptionFree);
        nint description = owner.Pointer;
        Pango.FontDescriptionSetFamily(description, families);
        Pango.FontDescriptionSetWeight(description, isBold ? BoldWeight : NormalWeight);
        Pango.FontDescriptionSetStyle(description, isItalic ? ItalicStyle : 0);
        Pango.FontDescriptionSetAbsoluteSize(description, EmSize * Pango.Scale);
        return owner;
    }

    private double MeasureCapRatio(int font)
    {
        PangoRectangle ink;
        using GlyphCache.Scope scope = GlyphCache.Use(NewParts(font, "H"));
        Pango.LayoutLineGetExtents(Shape(font, "H", 0), &ink, null);
        double ratio = -ink.Y / (Pango.Scale * EmSize);
        return ratio is > 0.2 and < 2 ? ratio : DefaultCapRatio;
    }

    private void SetSpacing(double ems)
    {
        using var list = new NativeHandle(Pango.AttrListNew(), &Pango.AttrListUnref);
        if (ems != 0)
        {
            Pango.AttrListInsert(list.Pointer, Pango.AttrLetterSpacingNew((int)Math.Round(ems * EmSize * Pango.Scale)));
        }

        Pango.LayoutSetAttributes(_layout.Pointer, list.Pointer);
        _currentSpacing = ems;
    }

    private void SetText(string text)
    {
        ReadOnlySpan<char> shown = text.AsSpan(0, Math.Min(text.Length, MaxCharacters));
        int most = Encoding.UTF8.GetMaxByteCount(shown.Length);
        Span<byte> utf8 = most <= MaxBytesOnStack ? stackalloc byte[most] : new byte[most];
        int length = Encoding.UTF8.GetBytes(shown, utf8);
        fixed (byte* bytes = utf8)
        {
            Pango.LayoutSetText(_layout.Pointer, bytes, length);
        }

        _currentText = text;
    }

    /// <summary>A font as pango is asked for it, and what is known of it.</summary>
    private sealed class ShaperFont(FontSpec spec, NativeHandle description)
    {
        internal FontSpec Spec { get; } = spec;

        internal NativeHandle Description { get; } = description;

        internal double CapRatio { get; set; } = DefaultCapRatio;

        internal Dictionary<string, ShapedLine> Lines { get; } = [];

        internal bool HasFile { get; set; }

        internal string? File { get; set; }
    }
}
