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

/// <summary>What clips leave of the page: the box in pixels, and whether it is all that they leave.</summary>
internal readonly record struct ClipArea(Bounds2 Box, bool IsBox);

/// <summary>
/// Plays a list on a cairo context. Coordinates are mapped here, in double precision: cairo keeps 24.8 fixed point,
/// and drawings lie at map coordinates of seven digits.
/// </summary>
internal sealed unsafe class CairoPainter
{
    /// <summary>Dashes shorter than this in device units melt into a line.</summary>
    private const double ShortestPeriod = 0.75;

    /// <summary>Far outside of any page; keeps coordinates inside cairo's fixed point range.</summary>
    private const double FarAway = 4_000_000;
    private const double SmallestText = 0.15;

    /// <summary>Below this em in pixels no character can be told from another.</summary>
    private const double BarText = 1.6;

    /// <summary>The height and opacity of the bar for such a text: about what its characters cover.</summary>
    private const double BarHeight = 0.6;
    private const double BarOpacity = 0.4;
    private static readonly PathVerb[] BarVerbs = [PathVerb.Move, PathVerb.Line];

    /// <summary>That of cairo itself, in device units.</summary>
    private const double DefaultTolerance = 0.1;

    /// <summary>How far the sides of a box may be from upright, in pixels.</summary>
    private const double BoxTolerance = 0.05;

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
    private readonly DrawingList _list;
    private readonly PaintSettings _settings;
    private readonly Affine2 _map;
    private readonly double _scale;
    private readonly RowRange _rows;
    private readonly PixelTarget _target;
    private readonly Stack<ClipArea> _clips = new();
    private ClipArea _clip = new(Bounds2.Of(-FarAway, -FarAway, FarAway, FarAway), IsBox: true);
    private bool _isDirect;
    private Rgba _color;
    private bool _hasColor;
    private double _lineWidth = -1;
    private LineLook? _look;
    private int _dash = -1;
    private double _dashOffset;

    private CairoPainter(nint cr, TextEngine engine, DrawingList list, in PaintSettings settings, PixelTarget target)
    {
        _target = target;
        _rows = target.Rows;
        _cr = cr;
        _engine = engine;
        _list = list;
        _settings = settings;
        _map = settings.ToDevice;
        _scale = Math.Sqrt(Math.Abs(_map.Determinant));
    }

    /// <summary>Paints rows of a page with its background and what lies over it.</summary>
    internal static void Paint(nint cr, TextEngine engine, Page page, PixelTarget target)
    {
        Paint(cr, engine, page.List, page.Settings, target);
        if (page.Overlay != null)
        {
            Paint(cr, engine, page.Overlay,
                page.Settings with { ToDevice = Affine2.Identity, PaintBackground = false, Clip = null }, target);
        }
    }

    private static void Paint(
        nint cr, TextEngine engine, DrawingList list, in PaintSettings settings, PixelTarget target)
    {
        var painter = new CairoPainter(cr, engine, list, settings, target);
        Cairo.Save(cr);
        painter.Start();
        foreach (ref readonly DisplayItem item in list.Items)
        {
            painter.Draw(item);
        }

        painter.UseCairo();

        Cairo.Restore(cr);
        Cairo.Check(Cairo.Status(cr), "drawing a page");
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

    private void Draw(in DisplayItem item)
    {
        switch (item.Kind)
        {
            case DisplayKind.Stroke:
                Stroke(item);
                break;
            case DisplayKind.Fill:
                Fill(item);
                break;
            case DisplayKind.Text:
                Text(item);
                break;
            case DisplayKind.Image:
                Image(item);
                break;
            case DisplayKind.PushClip:
                PushClip(item);
                break;
            case DisplayKind.PopClip:
                UseCairo();
                Cairo.Restore(_cr);
                ForgetState();
                _clip = _clips.Pop();
                break;
        }
    }

    private void Stroke(in DisplayItem item)
    {
        if (item.TextHeight > 0 && _skipsStrokes)
        {
            return;
        }

        double width = _settings.WidthOf(item);
        LineLook look = _list.LookOf(item) ?? _settings.Look;
        if (!Crosses(item, width * Math.Max(1, look.Join == LineJoins.Miter ? look.MiterLimit : 1)))
        {
            return;
        }

        bool isDashed = item.Dash >= 0 && Period(item) >= ShortestPeriod;
        bool isThin = width <= ThinLinePainter.MaxWidth && !isDashed && !_settings.Sharp;
        if (isThin && _clip.IsBox && TryDrawDirectly(item, width))
        {
            return;
        }

        Trace(item);
        SetColor(item.Color);
        if (width != _lineWidth)
        {
            Cairo.SetLineWidth(_cr, width);
            _lineWidth = width;
        }

        SetLook(look);
        SetDash(item, isDashed);
        Cairo.Stroke(_cr);
    }

    private bool TryDrawDirectly(in DisplayItem item, double width) =>
        DrawDirectly(_list.VerbsOf(item), _list.CoordsOf(item), _map, width, item.Color);

    private bool DrawDirectly(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, double width, Rgba color)
    {
        if (!_isDirect)
        {
            Cairo.SurfaceFlush(_target.Surface);
            _isDirect = true;
        }

        return _target.ThinLines.TryStroke(
            verbs, coords, map, _clip.Box, width, color, DefaultTolerance * _settings.Coarseness);
    }

    /// <summary>Tells cairo of what was drawn without it, before it draws.</summary>
    private void UseCairo()
    {
        if (_isDirect)
        {
            Cairo.SurfaceMarkDirty(_target.Surface);
            _isDirect = false;
        }
    }

    private double Period(in DisplayItem item)
    {
        double period = 0;
        foreach (double length in _list.DashOf(item))
        {
            period += length * _scale;
        }

        return period;
    }

    private void SetLook(LineLook value)
    {
        if (_look == value)
        {
            return;
        }

        Cairo.SetLineCap(_cr, (CairoLineCap)value.Cap);
        Cairo.SetLineJoin(_cr, (CairoLineJoin)value.Join);
        Cairo.SetMiterLimit(_cr, value.MiterLimit);
        _look = value;
    }

    private void SetDash(in DisplayItem item, bool isDashed)
    {
        if (!isDashed)
        {
            ClearDash();
            return;
        }

        if (item.Dash == _dash && item.DashOffset == _dashOffset)
        {
            return;
        }

        double[] lengths = _list.DashOf(item);
        Span<double> scaled = stackalloc double[lengths.Length <= 64 ? lengths.Length : 0];
        for (int i = 0; i < scaled.Length; i++)
        {
            scaled[i] = lengths[i] * _scale;
        }

        fixed (double* p = scaled)
        {
            Cairo.SetDash(_cr, p, scaled.Length, item.DashOffset * _scale);
        }

        _dash = item.Dash;
        _dashOffset = item.DashOffset;
    }

    private void ClearDash()
    {
        if (_dash >= 0)
        {
            Cairo.SetDash(_cr, null, 0, 0);
            _dash = -1;
        }
    }

    private void Fill(in DisplayItem item)
    {
        if (!Crosses(item, 0))
        {
            return;
        }

        Trace(item);
        Cairo.SetFillRule(_cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        if (item.Extra >= 0)
        {
            FillGradient(_list.GradientOf(item));
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

    private void Text(in DisplayItem item)
    {
        TextRun run = _list.TextOf(item);
        Affine2 toDevice = _map * run.Matrix;
        double area = Math.Abs(toDevice.Determinant);
        if (run.IsHidden)
        {
            ReplaceStrokes(run, toDevice, item.Color);
            return;
        }

        if (!(area > SmallestText * SmallestText) || !IsNear(toDevice.X0, toDevice.Y0))
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

    private void Image(in DisplayItem item)
    {
        UseCairo();
        PlacedImage image = _list.ImageOf(item);
        nint surface = Cairo.ImageSurfaceCreate(CairoFormat.Argb32, image.Width, image.Height);
        using var owner = new NativeHandle(surface, &Cairo.SurfaceDestroy);
        Cairo.Check(Cairo.SurfaceStatus(surface), "placing an image");
        int stride = Cairo.ImageSurfaceGetStride(surface);
        byte* data = Cairo.ImageSurfaceGetData(surface);
        for (int y = 0; y < image.Height; y++)
        {
            image.Pixels.AsSpan(y * image.Width * 4,
                image.Width * 4).CopyTo(new Span<byte>(data + ((long)y * stride), stride));
        }

        Cairo.SurfaceMarkDirty(surface);
        Cairo.Save(_cr);
        var toUnit = new Affine2(1.0 / image.Width, 0, 0, -1.0 / image.Height, 0, 1);
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

        Cairo.PaintWithAlpha(_cr, image.Opacity);
        Cairo.Restore(_cr);
        _hasColor = false;
    }

    private void PushClip(in DisplayItem item)
    {
        UseCairo();
        _clips.Push(_clip);
        Bounds2 box = BoxOf(item, out bool isBox);
        _clip = new ClipArea(box.Clip(_clip.Box), _clip.IsBox && isBox);
        Cairo.Save(_cr);
        Trace(item);
        Cairo.SetFillRule(_cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        Cairo.Clip(_cr);
    }

    /// <summary>Returns whether a path reaches into the rows that are painted.</summary>
    private bool Crosses(in DisplayItem item, double border)
    {
        ReadOnlySpan<double> c = _list.CoordsOf(item);
        int count = 0;
        foreach (PathVerb verb in _list.VerbsOf(item))
        {
            count += verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 };
        }

        double top = double.MaxValue;
        double bottom = double.MinValue;
        for (int at = 0; at < count; at += 2)
        {
            double y = (_map.Yx * c[at]) + (_map.Yy * c[at + 1]) + _map.Y0;
            top = Math.Min(top, y);
            bottom = Math.Max(bottom, y);
        }

        return bottom + border >= _rows.First - 1 && top - border <= _rows.End + 1;
    }

    /// <summary>The box of a path on the page, and whether the path is that box.</summary>
    private Bounds2 BoxOf(in DisplayItem item, out bool isBox)
    {
        ReadOnlySpan<PathVerb> verbs = _list.VerbsOf(item);
        ReadOnlySpan<double> c = _list.CoordsOf(item);
        isBox = verbs.Length is 4 or 5 or 6 && verbs[0] == PathVerb.Move
            && verbs[1..4].IndexOfAnyExcept(PathVerb.Line) < 0 && verbs[4..].IndexOf(PathVerb.Move) < 0;
        Bounds2 box = Bounds2.Empty;
        Vec2 last = default;
        for (int i = 0; i < 4 && isBox; i++)
        {
            Vec2 p = _map.Point(c[2 * i], c[(2 * i) + 1]);
            isBox &= i == 0 || Math.Abs(p.X - last.X) < BoxTolerance || Math.Abs(p.Y - last.Y) < BoxTolerance;
            box.Add(p.X, p.Y);
            last = p;
        }

        if (verbs.Length > 4 && verbs[4] == PathVerb.Line)
        {
            isBox &= c[8] == c[0] && c[9] == c[1];
        }

        return isBox ? box : Bounds2.Of(-FarAway, -FarAway, FarAway, FarAway);
    }

    private void Trace(in DisplayItem item)
    {
        UseCairo();
        Cairo.NewPath(_cr);
        ReadOnlySpan<double> c = _list.CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in _list.VerbsOf(item))
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Map(c, at, out double mx, out double my);
                    Cairo.MoveTo(_cr, mx, my);
                    at += 2;
                    break;
                case PathVerb.Line:
                    Map(c, at, out double lx, out double ly);
                    Cairo.LineTo(_cr, lx, ly);
                    at += 2;
                    break;
                case PathVerb.Curve:
                    Map(c, at, out double x1, out double y1);
                    Map(c, at + 2, out double x2, out double y2);
                    Map(c, at + 4, out double x3, out double y3);
                    Cairo.CurveTo(_cr, x1, y1, x2, y2, x3, y3);
                    at += 6;
                    break;
                default:
                    Cairo.ClosePath(_cr);
                    break;
            }
        }
    }

    private void Map(ReadOnlySpan<double> c, int at, out double x, out double y)
    {
        double u = c[at];
        double v = c[at + 1];
        x = Math.Clamp((_map.Xx * u) + (_map.Xy * v) + _map.X0, -FarAway, FarAway);
        y = Math.Clamp((_map.Yx * u) + (_map.Yy * v) + _map.Y0, -FarAway, FarAway);
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
        _look = null;
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
