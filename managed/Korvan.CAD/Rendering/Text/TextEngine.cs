using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text.Strokes;

namespace Korvan.CAD.Rendering.Text;

/// <summary>
/// Measures and shows runs of text through pango. Fonts are shaped unhinted at one large size, so that what is
/// measured in ems holds for every size and device. An engine belongs to one thread.
/// </summary>
internal sealed unsafe class TextEngine : IDisposable
{
    private const double EmSize = TextShaper.EmSize;

    /// <summary>Pango units in an em of what is shaped.</summary>
    internal const double UnitsPerEm = EmSize * Pango.Scale;

    private const int MaxCachedLines = 50_000;
    private const int MaxCachedCharacters = 500_000;

    /// <summary>What the glyphs of a character take.</summary>
    private const int BytesPerCharacter = 100;
    private const int MaxFonts = 500;
    private const int StepsPerFont = 100;
    private const int CharactersPerStep = 16;

    /// <summary>Replacements whose width differs by less are not fitted.</summary>
    private const double SmallestFit = 0.02;

    private TextShaper? _shaper;
    private readonly List<int> _shaped = [];
    private readonly List<FontSpec> _specs = [];
    private readonly Dictionary<FontSpec, int> _fonts = new(FontSpec.ByValue);
    private readonly List<Dictionary<string, ShapedLine>> _lines = [];
    private readonly List<FontUse> _faces = [];
    private readonly List<Dictionary<string, StrokeLine?>> _strokes = [];
    private readonly Dictionary<string, string> _replaced = new(StringComparer.OrdinalIgnoreCase);
    private readonly StrokeFaces _strokeFaces;
    private readonly GlyphRendering _look;
    private readonly FontFolders? _folders;
    private readonly bool _ownsFolders;
    private NativeHandle? _outliner;
    private int _cachedCharacters;

    /// <summary>An engine. Fonts of other folders than those of the system are taken over, and released with the
    /// engine.</summary>
    internal TextEngine(GlyphRendering look = default, FontFolders? folders = null, StrokeFaces? strokes = null)
        : this(look, folders, ownsFolders: true, strokes ?? new StrokeFaces())
    {
    }

    private TextEngine(GlyphRendering look, FontFolders? folders, bool ownsFolders, StrokeFaces strokes)
    {
        Lifetime = new Lifetime(Release);
        _strokeFaces = strokes;
        ProvideFontList();
        _look = look;
        _folders = folders;
        _ownsFolders = ownsFolders;
    }

    /// <summary>Gets what keeps the engine for work that outlives its owner.</summary>
    internal Lifetime Lifetime { get; }

    // Found when the first text asks for it: a drawing without text needs no shared library.
    private TextShaper Shaper => _shaper ??= TextShaper.Get(_look, _folders?.Config ?? 0);

    /// <summary>Lets the tables of drawings know the fonts that are installed; none where the libraries are
    /// missing.</summary>
    internal static void ProvideFontList() => FontTable.ListInstalled = static () =>
    {
        try
        {
            NativeLibraries.Require();
        }
        catch (RenderException)
        {
            return [];
        }

        return Fontconfig.ListFonts();
    };

    /// <summary>Creates an engine for another thread, which gives fonts the same numbers. It has to be released before
    /// this one.</summary>
    internal TextEngine ForThread()
    {
        var engine = new TextEngine(_look, _folders, ownsFolders: false, _strokeFaces);
        engine.AddFontsOf(this);
        return engine;
    }

    /// <summary>Adds the fonts that the engine that this one was created by has had since then.</summary>
    internal void AddFontsOf(TextEngine origin)
    {
        for (int i = _specs.Count; i < origin._specs.Count; i++)
        {
            Font(origin._specs[i]);
        }
    }

    /// <summary>Characters that no installed font could show, over all runs measured or shown.</summary>
    internal int UnknownGlyphs { get; private set; }

    internal int Font(FontSpec spec)
    {
        if (!_fonts.TryGetValue(spec, out int index))
        {
            // Each font takes time to be found, and most names of so many lead to the same font.
            FontSpec fallback = FontSpec.Default with { Bold = spec.Bold, Italic = spec.Italic };
            if (_specs.Count >= MaxFonts && spec != fallback)
            {
                return Font(fallback);
            }

            Budget.Step(StepsPerFont);
            index = _specs.Count;
            _shaped.Add(Shaper.Font(_folders?.Resolve(spec.Family) ?? spec.Family, spec.Bold, spec.Italic));
            _lines.Add([]);
            _strokes.Add([]);
            _specs.Add(spec);
            _fonts.Add(spec, index);
            _faces.Add(new FontUse(index, null, 1));
            _faces[index] = UseOf(spec, index);
        }

        return index;
    }

    /// <summary>Returns the strokes of a symbol of the compiled fonts, in units of its file; null for none.</summary>
    internal List<Vec2[]>? FindSymbol(string name) => _strokeFaces.FindSymbol(name);

    /// <summary>Gets the fonts that drawings name and that were replaced, with what they were replaced by.</summary>
    internal Dictionary<string, string> Replaced => _replaced;

    /// <summary>Returns the font that shows the outlines of another one: that one itself, unless it is drawn by strokes
    /// or made as wide as the one that it replaces.</summary>
    internal int OutlineOf(int font) => _faces[font].Outline;

    /// <summary>Returns the factor on the width of the outlines of a font.</summary>
    internal double WidthOf(int font) => _faces[font].Width;

    /// <summary>Measures the strokes of a run; null where its font has none, or not for all characters.</summary>
    internal StrokeLine? StrokesOf(int font, string text, double letterSpacing)
    {
        if (_faces[font].Strokes is not { } face || text.Length == 0)
        {
            return null;
        }

        Dictionary<string, StrokeLine?> known = _strokes[font];
        string key = letterSpacing == 0 ? text : $"{letterSpacing:R}\0{text}";
        if (!known.TryGetValue(key, out StrokeLine? line))
        {
            Budget.Step(1 + (text.Length / CharactersPerStep));
            line = StrokeRun.Measure(face, Shown(text), CapRatio(font), letterSpacing);
            ClearIfFull(known, text.Length);
            known.Add(key, line);
        }

        return line;
    }

    /// <summary>Adds the strokes of a run that <see cref="StrokesOf"/> has measured; the matrix maps its ems, y up from
    /// the baseline.</summary>
    internal void AddStrokes(int font, string text, double letterSpacing, in Affine2 matrix, PathBuffer target) =>
        StrokeRun.Append(_faces[font].Strokes!, Shown(text), CapRatio(font), letterSpacing, matrix, target);

    /// <summary>How far the pen moves over the outlines of a text, in ems. Characters that no font has do not count as
    /// unknown, since they are drawn otherwise.</summary>
    internal double HiddenAdvance(int font, string text)
    {
        int unknown = UnknownGlyphs;
        double advance = Advance(font, text);
        UnknownGlyphs = unknown;
        return advance;
    }

    private FontUse UseOf(in FontSpec spec, int index)
    {
        if (spec.IsPlain)
        {
            return new FontUse(index, null, 1);
        }

        FontSpec plain = spec with { Stroke = null, BigFont = null, IsPlain = true };
        if (spec.Stroke is not null)
        {
            StrokeFace? strokes = _strokeFaces.Find(spec, _replaced);
            if (strokes is null)
            {
                _replaced.TryAdd(spec.Stroke + ".shx", FirstOf(spec.Family));
            }

            return new FontUse(Font(plain), strokes, 1);
        }

        string family = FirstOf(spec.Family);
        if (spec == FontSpec.Default || _folders?.Knows(family) == true || FontTable.IsInstalled(family))
        {
            return new FontUse(index, null, 1);
        }

        _replaced.TryAdd(family, ReplacementOf(index));
        double factor = FontWidths.FactorOf(family, Advance(index, "0"));
        return Math.Abs(factor - 1) < SmallestFit
            ? new FontUse(index, null, 1)
            : new FontUse(Font(plain), null, factor);
    }

    private static string FirstOf(string families) => families.Split(',')[0].Trim();

    private string ReplacementOf(int font) => FileOf(font) is { } file
        ? FontTable.FamilyOf(file) ?? System.IO.Path.GetFileNameWithoutExtension(file)
        : "no font";

    internal FontSpec SpecOf(int font) => _specs[font];

    /// <summary>Height of a capital letter as a share of the em: drawings give the first, fonts are scaled by the
    /// second.</summary>
    internal double CapRatio(int font) => Shaper.CapRatio(_shaped[font]);

    /// <summary>How far the pen moves over the text, in ems.</summary>
    internal double Advance(int font, string text, double letterSpacing = 0)
    {
        if (text.Length == 0)
        {
            return 0;
        }

        (int outline, _, double width) = _faces[font];
        return StrokesOf(font, text, letterSpacing)?.Advance
            ?? Line(outline, text, letterSpacing / width).Advance * width;
    }

    /// <summary>The glyphs of a run.</summary>
    internal ShapedLine Line(in TextRun run) => Line(run.Font, run.Text, run.LetterSpacing);

    /// <summary>Returns what a font is for all threads.</summary>
    internal FontFaceKey KeyOf(int font) => Shaper.KeyOf(_shaped[font]);

    /// <summary>The box of the outlines of a run, in its ems, y up from the baseline.</summary>
    internal Bounds2 InkOf(in TextRun run)
    {
        ShapedLine line = Line(run);
        return line.Ink ??= Shaper.InkOf(_shaped[run.Font], line.Text, run.LetterSpacing);
    }

    private ShapedLine Line(int font, string text, double letterSpacing)
    {
        Budget.Check();
        Dictionary<string, ShapedLine> known = _lines[font];
        string key = letterSpacing == 0 ? text : $"{letterSpacing:R}\0{text}";
        if (!known.TryGetValue(key, out ShapedLine? line))
        {
            Budget.Step(1 + (text.Length / CharactersPerStep));
            string shown = Shown(text);
            line = Shaper.Line(_shaped[font], shown, letterSpacing);
            UnknownGlyphs += line.UnknownGlyphs + text.Length - shown.Length;
            ClearIfFull(known, text.Length);
            known.Add(key, line);
        }

        return line;
    }

    private static string Shown(string text) =>
        text.Length <= TextShaper.MaxCharacters ? text : text[..TextShaper.MaxCharacters];

    private void ClearIfFull<T>(Dictionary<string, T> known, int characters)
    {
        _cachedCharacters += characters;
        if (_cachedCharacters > Budget.Room(MaxCachedCharacters, BytesPerCharacter))
        {
            _lines.ForEach(static lines => lines.Clear());
            _strokes.ForEach(static lines => lines.Clear());
            _cachedCharacters = 0;
        }
        else if (known.Count >= MaxCachedLines)
        {
            known.Clear();
        }
    }

    /// <summary>Shows a run with its baseline along the x axis of the current matrix, one em to a unit, y
    /// down.</summary>
    internal void Show(nint cr, in TextRun run)
    {
        Pango.CairoShowLayoutLine(cr, Start(cr, run));
        Cairo.NewPath(cr);
    }

    /// <summary>Makes the outlines of a run the path, as <see cref="Show"/> would show them.</summary>
    internal void Trace(nint cr, in TextRun run) => Pango.CairoLayoutLinePath(cr, Start(cr, run));

    private nint Start(nint cr, in TextRun run)
    {
        nint line = Shape(run.Font, run.Text, run.LetterSpacing);
        var scale = new CairoMatrix { Xx = 1 / EmSize, Yy = 1 / EmSize };
        Cairo.Transform(cr, &scale);
        Cairo.NewPath(cr);
        Cairo.MoveTo(cr, 0, 0);
        return line;
    }

    /// <summary>Adds the outlines of a run; the matrix maps its ems, y up from the baseline.</summary>
    internal void AddOutline(in TextRun run, in Affine2 matrix, PathBuffer target)
    {
        using GlyphCache.Scope scope = GlyphCache.Use(Shaper.NewParts(_shaped[run.Font], run.Text));
        nint line = Shape(run.Font, run.Text, run.LetterSpacing);
        if (_outliner is null)
        {
            // A bounded surface would lose the glyphs beyond its bounds, even from a path.
            nint recording = Cairo.RecordingSurfaceCreate(Cairo.ContentColorAlpha, null);
            using var surface = new NativeHandle(recording, &Cairo.SurfaceDestroy);
            _outliner = new NativeHandle(Cairo.Create(surface.Pointer), &GlyphCache.Destroy);
        }

        nint outliner = _outliner.Pointer;
        Cairo.NewPath(outliner);
        Cairo.MoveTo(outliner, 0, 0);
        Pango.CairoLayoutLinePath(outliner, line);
        CairoPaths.Append(outliner, matrix * new Affine2(1 / EmSize, 0, 0, -1 / EmSize, 0, 0), target);
    }

    public void Dispose() => Lifetime.End();

    private void Release()
    {
        _outliner?.Dispose();
        _shaper?.Release();
        if (_ownsFolders)
        {
            _folders?.Dispose();
        }
    }

    /// <summary>The file of the font that is used for a face, or null when there is no font at all.</summary>
    internal string? FileOf(int font) => Shaper.FileOf(_shaped[font]);

    /// <summary>How a font is shown: by the outlines of a font, made wider or narrower, or by strokes.</summary>
    private readonly record struct FontUse(int Outline, StrokeFace? Strokes, double Width);

    private nint Shape(int font, string text, double letterSpacing) =>
        Shaper.Shape(_shaped[font], text, letterSpacing);
}
