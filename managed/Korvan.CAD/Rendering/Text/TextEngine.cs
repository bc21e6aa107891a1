using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>
/// Measures and shows runs of text through pango. Fonts are shaped unhinted at one large size, so that what is
/// measured in ems holds for every size and device. An engine belongs to one thread.
/// </summary>
internal sealed unsafe class TextEngine : IDisposable
{
    /// <summary>The size in device units at which everything is shaped; cairo's matrix brings it to the real one.</summary>
    private const double EmSize = 256;
    private const int BoldWeight = 700;
    private const int NormalWeight = 400;
    private const int ItalicStyle = 2;
    private const int HintMetricsOff = 1;
    private const int MostCachedAdvances = 50_000;
    private const double UsualCapRatio = 0.7;

    private readonly List<nint> descriptions = [];
    private readonly List<FontSpec> specs = [];
    private readonly List<double> capRatios = [];
    private readonly Dictionary<FontSpec, int> fonts = [];
    private readonly Dictionary<(int Font, string Text, double Spacing), double> advances = [];
    private readonly FontFolders? folders;
    private nint fontMap;
    private nint context;
    private nint layout;
    private nint outliner;
    private int currentFont = -1;
    private string? currentText;
    private double currentSpacing;

    /// <summary>An engine. Fonts of other folders than those of the system are taken over, and released with the
    /// engine.</summary>
    internal TextEngine(LetterLook look = default, FontFolders? folders = null)
    {
        NativeLibraries.Require();
        FontTable.ListInstalled = static () => Fontconfig.ListFonts();
        this.folders = folders;
        fontMap = Pango.CairoFontMapNew();
        if (folders is not null)
        {
            Pango.FcFontMapSetConfig(fontMap, folders.Config);
        }

        context = Pango.FontMapCreateContext(fontMap);
        Pango.CairoContextSetResolution(context, 72);
        Pango.ContextSetRoundGlyphPositions(context, 0);
        nint options = Cairo.FontOptionsCreate();
        Cairo.FontOptionsSetHintStyle(options, look.Hinting);
        Cairo.FontOptionsSetHintMetrics(options, HintMetricsOff);
        Cairo.FontOptionsSetAntialias(options, look.Antialias);
        Pango.CairoContextSetFontOptions(context, options);
        Cairo.FontOptionsDestroy(options);
        layout = Pango.LayoutNew(context);
        Pango.LayoutSetSingleParagraphMode(layout, 1);
        Pango.LayoutSetAutoDir(layout, 1);
    }

    /// <summary>Characters that no installed font could show, over all runs measured or shown.</summary>
    internal int UnknownGlyphs { get; private set; }

    internal int Font(FontSpec spec)
    {
        if (!fonts.TryGetValue(spec, out int index))
        {
            index = descriptions.Count;
            descriptions.Add(Describe(spec));
            specs.Add(spec);
            fonts.Add(spec, index);
            capRatios.Add(MeasureCapRatio(index));
        }

        return index;
    }

    internal FontSpec SpecOf(int font) => specs[font];

    /// <summary>Height of a capital letter as a part of the em: drawings give the first, fonts are scaled by the second.</summary>
    internal double CapRatio(int font) => capRatios[font];

    /// <summary>How far the pen moves over the text, in ems.</summary>
    internal double Advance(int font, string text, double letterSpacing = 0)
    {
        if (text.Length == 0)
        {
            return 0;
        }

        var key = (font, text, letterSpacing);
        if (!advances.TryGetValue(key, out double advance))
        {
            PangoRectangle logical;
            nint line = Shape(font, text, letterSpacing);
            UnknownGlyphs += Pango.LayoutGetUnknownGlyphsCount(layout);
            Pango.LayoutLineGetExtents(line, null, &logical);
            advance = logical.Width / (Pango.Scale * EmSize);
            if (advances.Count >= MostCachedAdvances)
            {
                advances.Clear();
            }

            advances.Add(key, advance);
        }

        return advance;
    }

    /// <summary>Shows a run with its baseline along the x axis of the current matrix, one em to a unit, y down.</summary>
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
        nint line = Shape(run.Font, run.Text, run.LetterSpacing);
        if (outliner == 0)
        {
            // A surface with an end would lose the letters beyond it, even from a path.
            nint surface = Cairo.RecordingSurfaceCreate(Cairo.ContentColorAlpha, null);
            outliner = Cairo.Create(surface);
            Cairo.SurfaceDestroy(surface);
        }

        Cairo.NewPath(outliner);
        Cairo.MoveTo(outliner, 0, 0);
        Pango.CairoLayoutLinePath(outliner, line);
        CairoPaths.Append(outliner, matrix * new Affine2(1 / EmSize, 0, 0, -1 / EmSize, 0, 0), target);
    }

    public void Dispose()
    {
        if (outliner != 0)
        {
            Cairo.Destroy(outliner);
            outliner = 0;
        }

        foreach (nint description in descriptions)
        {
            Pango.FontDescriptionFree(description);
        }

        descriptions.Clear();
        Release(ref layout);
        Release(ref context);
        Release(ref fontMap);
        folders?.Dispose();
    }

    /// <summary>The file of the font that is used for a face, or null when there is no font at all.</summary>
    internal string? FileOf(int font)
    {
        FontSpec spec = specs[font];
        return Fontconfig.FileOf(folders?.Config ?? 0, folders?.Resolve(spec.Family) ?? spec.Family, spec.Bold, spec.Italic);
    }

    private static void Release(ref nint instance)
    {
        if (instance != 0)
        {
            Pango.Unref(instance);
            instance = 0;
        }
    }

    private nint Describe(FontSpec spec)
    {
        nint description = Pango.FontDescriptionNew();
        Pango.FontDescriptionSetFamily(description, folders?.Resolve(spec.Family) ?? spec.Family);
        Pango.FontDescriptionSetWeight(description, spec.Bold ? BoldWeight : NormalWeight);
        Pango.FontDescriptionSetStyle(description, spec.Italic ? ItalicStyle : 0);
        Pango.FontDescriptionSetAbsoluteSize(description, EmSize * Pango.Scale);
        return description;
    }

    private double MeasureCapRatio(int font)
    {
        PangoRectangle ink;
        Pango.LayoutLineGetExtents(Shape(font, "H", 0), &ink, null);
        double ratio = -ink.Y / (Pango.Scale * EmSize);
        return ratio is > 0.2 and < 2 ? ratio : UsualCapRatio;
    }

    private nint Shape(int font, string text, double letterSpacing)
    {
        if (font != currentFont)
        {
            Pango.LayoutSetFontDescription(layout, descriptions[font]);
            currentFont = font;
        }

        if (letterSpacing != currentSpacing)
        {
            SetSpacing(letterSpacing);
        }

        if (!ReferenceEquals(text, currentText))
        {
            SetText(text);
        }

        return Pango.LayoutGetLine(layout, 0);
    }

    private void SetSpacing(double ems)
    {
        nint list = Pango.AttrListNew();
        if (ems != 0)
        {
            Pango.AttrListInsert(list, Pango.AttrLetterSpacingNew((int)Math.Round(ems * EmSize * Pango.Scale)));
        }

        Pango.LayoutSetAttributes(layout, list);
        Pango.AttrListUnref(list);
        currentSpacing = ems;
    }

    private void SetText(string text)
    {
        int most = Encoding.UTF8.GetMaxByteCount(text.Length);
        Span<byte> utf8 = most <= 1024 ? stackalloc byte[most] : new byte[most];
        int length = Encoding.UTF8.GetBytes(text, utf8);
        fixed (byte* bytes = utf8)
        {
            Pango.LayoutSetText(layout, bytes, length);
        }

        currentText = text;
    }
}
