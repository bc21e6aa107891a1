using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Rows of pixels that are painted; the last one is not among them.</summary>
internal readonly record struct RowRange(int First, int End);

/// <summary>The pixels that are painted: as a surface of cairo, and for thin lines directly.</summary>
internal readonly record struct PixelTarget(nint Surface, RowRange Rows, ThinLinePainter ThinLines);

/// <summary>What clips leave of the page: the box in pixels, and whether it is all that has to be minded while what
/// they limit is drawn.</summary>
internal readonly record struct ClipArea(Bounds2 Box, bool IsBox, int Steps = 0, MaskedPixels? Mask = null);

/// <summary>
/// Plays a list on a cairo context. Coordinates are mapped here, in double precision: cairo keeps 24.8 fixed point,
/// and drawings lie at map coordinates of seven digits.
/// </summary>
internal sealed unsafe partial class CairoPainter : ItemPlayer, IDisposable
{
    /// <summary>Far outside of any page; keeps coordinates inside cairo's fixed point range.</summary>
    private const double FarAway = 4_000_000;
    private const double SmallestText = 0.15;

    /// <summary>Characters of this many pixels exceed what FreeType scales outlines to; a page shows nothing of
    /// them but the inside of a stroke, or the space between two.</summary>
    private const double MaxText = 30_000;

    /// <summary>Below this em in pixels no character can be told from another.</summary>
    private const double BarText = 1.6;

    /// <summary>The height and opacity of the bar for such a text: about what its characters cover.</summary>
    private const double BarHeight = 0.6;
    private const double BarOpacity = 0.4;
    private static readonly PathVerb[] BarVerbs = [PathVerb.Move, PathVerb.Line];

    /// <summary>That of cairo itself, in device units.</summary>
    private const double DefaultTolerance = 0.1;

    /// <summary>The parts of a path that take about as long as one step of the budget.</summary>
    private const int VerbsPerStep = 8;

    /// <summary>The pixels of an image, as it shows, that take about as long as one step of the budget.</summary>
    private const int ImagePixelsPerStep = 250;

    private static readonly Dictionary<InterpolationMode, CairoFilter> Filters = new()
    {
        [InterpolationMode.Low] = CairoFilter.Fast,
        [InterpolationMode.High] = CairoFilter.Best,
        [InterpolationMode.Bilinear] = CairoFilter.Bilinear,
        [InterpolationMode.Bicubic] = CairoFilter.Best,
        [InterpolationMode.NearestNeighbor] = CairoFilter.Nearest,
    };

    private readonly nint _cr;
    private readonly TextEngine _engine;
    private bool _skipsStrokes;
    private readonly PaintSettings _settings;
    private readonly Affine2 _map;
    private readonly double _scale;
    private readonly RowRange _rows;
    private readonly PixelTarget _target;
    private readonly Stack<ClipArea> _clips = new();
    private ClipArea _clip = new(Bounds2.Of(-FarAway, -FarAway, FarAway, FarAway), IsBox: true);
    private bool _isDirect;
    private DenseFiller? _denseFiller;
    private readonly GlyphUses _glyphs = new();
    private Rgba _color;
    private bool _hasColor;
    private double _lineWidth = -1;
    private StrokeStyle? _style;
    private int _dash = -1;
    private double _dashOffset;

    private CairoPainter(nint cr, TextEngine engine, DrawingList list, in PaintSettings settings, PixelTarget target)
        : base(list)
    {
        _target = target;
        _rows = target.Rows;
        _cr = cr;
        _engine = engine;
        _settings = settings;
        _map = settings.ToDevice;
        _scale = Math.Sqrt(Math.Abs(_map.Determinant));
    }

    /// <summary>Begins to paint rows of a page, with its background.</summary>
    internal static CairoPainter Begin(nint cr, TextEngine engine, Page page, PixelTarget target) =>
        Begin(cr, engine, page.List, page.Settings, target);

    /// <summary>Paints the items of a list, which is the one of the page or a part of it.</summary>
    internal void DrawItems(DrawingList list)
    {
        // The indices of dashes are those of the list.
        _dash = int.MaxValue;
        ClearDash();
        PlayItems(list);
    }

    /// <summary>Paints what is over the page, and ends.</summary>
    internal void End(Page page)
    {
        End();
        if (page.Overlay != null)
        {
            PaintSettings settings =
                page.Settings with { ToDevice = Affine2.Identity, PaintBackground = false, Clip = null };
            using CairoPainter overlay = Begin(_cr, _engine, page.Overlay, settings, _target);
            overlay.DrawItems(page.Overlay);
            overlay.End();
        }
    }

    private static CairoPainter Begin(
        nint cr, TextEngine engine, DrawingList list, in PaintSettings settings, PixelTarget target)
    {
        var painter = new CairoPainter(cr, engine, list, settings, target);
        Cairo.Save(cr);
        painter.Start();
        return painter;
    }

    private void End()
    {
        UseCairo();
        Cairo.Restore(_cr);
        Cairo.Check(Cairo.Status(_cr), "drawing a page");
    }

    private void Start()
    {
        if (_settings.PaintBackground)
        {
            SetColor(_settings.Background);
            Cairo.Paint(_cr);
        }

        if (_settings.Clip is Bounds2 clip)
        {
            Vec2 a = _map.Point(clip.MinX, clip.MinY);
            Vec2 b = _map.Point(clip.MaxX, clip.MaxY);
            Cairo.Rectangle(_cr, Math.Min(a.X, b.X), Math.Min(a.Y, b.Y), Math.Abs(b.X - a.X), Math.Abs(b.Y - a.Y));
            Cairo.Clip(_cr);
            _clip = new ClipArea(
                Bounds2.Of(Math.Min(a.X, b.X), Math.Min(a.Y, b.Y), Math.Max(a.X, b.X), Math.Max(a.Y, b.Y)),
                IsBox: true);
        }

        Cairo.SetTolerance(_cr, DefaultTolerance * _settings.Coarseness);
        if (_settings.Sharp)
        {
            Cairo.SetAntialias(_cr, CairoAntialias.None);
        }
    }

    protected override void PlayFill(in DisplayItem item)
    {
        if (!Crosses(item, 0))
        {
            return;
        }

        if (item.Extra < 0 && TryFillDense(item))
        {
            return;
        }

        CountWork(item, 1, FillEdgesPerStep);
        Trace(item);
        Cairo.SetFillRule(_cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        if (item.Extra >= 0)
        {
            CountGradient(item);
            FillGradient(List.GradientOf(item));
            return;
        }

        SetColor(item.Color);
        Cairo.Fill(_cr);
    }

    private void FillGradient(Gradient gradient)
    {
        Affine2 toDevice = _map * gradient.Matrix;
        if (!toDevice.TryInvert(out Affine2 inverse))
        {
            SetColor(gradient.Stops[0].Color);
            Cairo.Fill(_cr);
            return;
        }

        nint pattern = gradient.Radial
            ? Cairo.PatternCreateRadial(gradient.FocusX, gradient.FocusY, 0, 0, 0, 1)
            : Cairo.PatternCreateLinear(-1, 0, 1, 0);
        using var owner = new NativeHandle(pattern, &Cairo.PatternDestroy);
        foreach (GradientStop stop in gradient.Stops)
        {
            Cairo.PatternAddColorStop(
                pattern, stop.Offset, stop.Color.R / 255.0, stop.Color.G / 255.0, stop.Color.B / 255.0,
                    stop.Color.A / 255.0);
        }

        CairoMatrix matrix = ToCairo(inverse);
        Cairo.PatternSetMatrix(pattern, &matrix);
        Cairo.SetSource(_cr, pattern);
        Cairo.Fill(_cr);
        _hasColor = false;
    }

    protected override void PlayText(in DisplayItem item)
    {
        TextRun run = List.TextOf(item);
        Affine2 toDevice = _map * run.Matrix;
        double area = Math.Abs(toDevice.Determinant);
        if (run.IsHidden)
        {
            ReplaceStrokes(run, toDevice, item.Color);
            return;
        }

        if (area is not (> SmallestText * SmallestText and < MaxText * MaxText)
            || !IsNear(toDevice.X0, toDevice.Y0))
        {
            return;
        }

        if (area < BarText * BarText && _clip.IsBox && !_settings.Sharp && run.Advance > 0)
        {
            Bar(run, toDevice, item.Color);
            return;
        }

        UseCairo();
        SetColor(item.Color);

        // The text may have to be shaped as well.
        using GlyphCache.Scope scope = GlyphCache.Use(
            2 * _glyphs.Add(run.Font, _engine.KeyOf(run.Font), toDevice, run.Text));
        Cairo.Save(_cr);

        // The run's y runs up, pango's down.
        CairoMatrix matrix = ToCairo(toDevice);
        matrix.Xy = -matrix.Xy;
        matrix.Yy = -matrix.Yy;
        Cairo.Transform(_cr, &matrix);
        if (_settings.ExactText)
        {
            _engine.Trace(_cr, run);
            Cairo.SetFillRule(_cr, CairoFillRule.Winding);
            Cairo.Fill(_cr);
        }
        else
        {
            _engine.Show(_cr, run);
        }

        Cairo.Restore(_cr);
    }

    /// <summary>The strokes of a text that is too small to be read are not drawn, but a bar.</summary>
    private void ReplaceStrokes(in TextRun run, in Affine2 toDevice, Rgba color)
    {
        double area = Math.Abs(toDevice.Determinant);
        bool isTiny = !(area > SmallestText * SmallestText);
        _skipsStrokes = isTiny || (area < BarText * BarText && _clip.IsBox && !_settings.Sharp);
        if (_skipsStrokes && !isTiny && IsNear(toDevice.X0, toDevice.Y0))
        {
            Bar(run, toDevice, color);
        }
    }

    /// <summary>Draws what is seen of a text too small to be read: a faint bar.</summary>
    private void Bar(in TextRun run, in Affine2 toDevice, Rgba color)
    {
        double height = new Vec2(toDevice.Xy, toDevice.Yy).Length * BarHeight;
        ReadOnlySpan<double> ends = [0, BarHeight / 2, run.Advance, BarHeight / 2];
        double alpha = color.A * BarOpacity * Math.Min(1, height);
        DrawDirectly(BarVerbs, ends, toDevice, Math.Max(1, height), color.WithAlpha((byte)alpha));
    }

    protected override void PlayImage(in DisplayItem item)
    {
        UseCairo();
        PlacedImage image = List.ImageOf(item);
        Affine2 place = _map * image.Matrix;
        if (!place.TryInvert(out _))
        {
            return; // cairo draws nothing more after a matrix without an inverse
        }

        double shownWidth = new Vec2(place.Xx, place.Yx).Length;
        double shownHeight = new Vec2(place.Xy, place.Yy).Length;
        Bounds2 shown = _clip.Box.Clip(Bounds2.Of(0, _rows.First, _target.ThinLines.Width, _rows.End));
        double area = Math.Min(shownWidth * shownHeight, Math.Max(0, shown.Width) * Math.Max(0, shown.Height));
        Budget.Step(1 + (long)(area / ImagePixelsPerStep));
        bool isNearest = _settings.Interpolation == InterpolationMode.NearestNeighbor;
        (int width, int height, byte[] pixels) = isNearest
            ? (image.Width, image.Height, image.Pixels)
            : ReducedImages.Of(image.Width, image.Height, image.Pixels, shownWidth, shownHeight);
        fixed (byte* data = pixels)
        {
            nint surface = Cairo.ImageSurfaceCreateForData(data, CairoFormat.Argb32, width, height, width * 4);
            using var owner = new NativeHandle(surface, &Cairo.SurfaceDestroy);
            Cairo.Check(Cairo.SurfaceStatus(surface), "placing an image");
            Paint(image, surface, width, height, isEnlarged: shownWidth > width || shownHeight > height);
        }
    }

    private void Paint(PlacedImage image, nint surface, int width, int height, bool isEnlarged)
    {
        Cairo.Save(_cr);
        var toUnit = new Affine2(1.0 / width, 0, 0, -1.0 / height, 0, 1);
        CairoMatrix matrix = ToCairo(_map * image.Matrix * toUnit);
        Cairo.Transform(_cr, &matrix);
        Cairo.SetSourceSurface(_cr, surface, 0, 0);
        if (Filters.TryGetValue(_settings.Interpolation, out CairoFilter filter))
        {
            Cairo.PatternSetFilter(Cairo.GetSource(_cr), filter);
        }
        else if (image.Sharp)
        {
            Cairo.PatternSetFilter(Cairo.GetSource(_cr), CairoFilter.Nearest);
        }

        if (isEnlarged && !image.Sharp)
        {
            // The outer pixels would fade into what is around them.
            Cairo.PatternSetExtend(Cairo.GetSource(_cr), CairoExtend.Pad);
            Cairo.NewPath(_cr);
            Cairo.Rectangle(_cr, 0, 0, width, height);
            Cairo.Clip(_cr);
        }

        Cairo.PaintWithAlpha(_cr, image.Opacity);
        Cairo.Restore(_cr);
        _hasColor = false;
    }

    private static bool IsNear(double x, double y) => Math.Abs(x) < FarAway && Math.Abs(y) < FarAway;

    private void SetColor(Rgba value)
    {
        if (!_hasColor || value != _color)
        {
            Cairo.SetSourceRgba(_cr, value.R / 255.0, value.G / 255.0, value.B / 255.0, value.A / 255.0);
            _color = value;
            _hasColor = true;
        }
    }

    /// <summary>After a restore the context is back at what held before the clip.</summary>
    private void ForgetState()
    {
        _hasColor = false;
        _lineWidth = -1;
        _style = null;
        _dash = int.MaxValue;
        ClearDash();
    }

    private static CairoMatrix ToCairo(in Affine2 m) => new()
    {
        Xx = m.Xx,
        Yx = m.Yx,
        Xy = m.Xy,
        Yy = m.Yy,
        X0 = m.X0,
        Y0 = m.Y0,
    };
}
