using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

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

    /// <summary>That of cairo itself, in device units.</summary>
    private const double DefaultTolerance = 0.1;

    private static readonly Dictionary<InterpolationMode, CairoFilter> Filters = new()
    {
        [InterpolationMode.Low] = CairoFilter.Fast,
        [InterpolationMode.High] = CairoFilter.Best,
        [InterpolationMode.Bilinear] = CairoFilter.Bilinear,
        [InterpolationMode.Bicubic] = CairoFilter.Best,
        [InterpolationMode.NearestNeighbor] = CairoFilter.Nearest,
    };

    private readonly nint cr;
    private readonly TextEngine engine;
    private readonly DrawingList list;
    private readonly PaintSettings settings;
    private readonly Affine2 map;
    private readonly double scale;
    private Rgba color;
    private bool hasColor;
    private double lineWidth = -1;
    private LineLook? look;
    private int dash = -1;
    private double dashOffset;

    private CairoPainter(nint cr, TextEngine engine, DrawingList list, in PaintSettings settings)
    {
        this.cr = cr;
        this.engine = engine;
        this.list = list;
        this.settings = settings;
        map = settings.ToDevice;
        scale = Math.Sqrt(Math.Abs(map.Determinant));
    }

    /// <summary>Paints a page with its background and what lies over it.</summary>
    internal static void Paint(nint cr, TextEngine engine, Page page)
    {
        Paint(cr, engine, page.List, page.Settings);
        if (page.Overlay != null)
        {
            Paint(cr, engine, page.Overlay, page.Settings with { ToDevice = Affine2.Identity, PaintBackground = false, Clip = null });
        }
    }

    private static void Paint(nint cr, TextEngine engine, DrawingList list, in PaintSettings settings)
    {
        var painter = new CairoPainter(cr, engine, list, settings);
        Cairo.Save(cr);
        painter.Start();
        foreach (ref readonly DisplayItem item in list.Items)
        {
            painter.Draw(item);
        }

        Cairo.Restore(cr);
        Cairo.Check(Cairo.Status(cr), "drawing a page");
    }

    private void Start()
    {
        if (settings.PaintBackground)
        {
            SetColor(settings.Background);
            Cairo.Paint(cr);
        }

        if (settings.Clip is Bounds2 clip)
        {
            Vec2 a = map.Point(clip.MinX, clip.MinY);
            Vec2 b = map.Point(clip.MaxX, clip.MaxY);
            Cairo.Rectangle(cr, Math.Min(a.X, b.X), Math.Min(a.Y, b.Y), Math.Abs(b.X - a.X), Math.Abs(b.Y - a.Y));
            Cairo.Clip(cr);
        }

        Cairo.SetTolerance(cr, DefaultTolerance * settings.Coarseness);
        if (settings.Sharp)
        {
            Cairo.SetAntialias(cr, CairoAntialias.None);
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
                Cairo.Restore(cr);
                ForgetState();
                break;
        }
    }

    private void Stroke(in DisplayItem item)
    {
        Trace(item);
        SetColor(item.Color);
        double width = settings.WidthOf(item);
        if (width != lineWidth)
        {
            Cairo.SetLineWidth(cr, width);
            lineWidth = width;
        }

        SetLook(list.LookOf(item) ?? settings.Look);
        SetDash(item);
        Cairo.Stroke(cr);
    }

    private void SetLook(LineLook value)
    {
        if (look == value)
        {
            return;
        }

        Cairo.SetLineCap(cr, (CairoLineCap)value.Cap);
        Cairo.SetLineJoin(cr, (CairoLineJoin)value.Join);
        Cairo.SetMiterLimit(cr, value.MiterLimit);
        look = value;
    }

    private void SetDash(in DisplayItem item)
    {
        if (item.Dash < 0)
        {
            ClearDash();
            return;
        }

        if (item.Dash == dash && item.DashOffset == dashOffset)
        {
            return;
        }

        double[] lengths = list.DashOf(item);
        Span<double> scaled = stackalloc double[lengths.Length <= 64 ? lengths.Length : 0];
        double period = 0;
        for (int i = 0; i < scaled.Length; i++)
        {
            scaled[i] = lengths[i] * scale;
            period += scaled[i];
        }

        if (period < ShortestPeriod)
        {
            ClearDash();
            return;
        }

        fixed (double* p = scaled)
        {
            Cairo.SetDash(cr, p, scaled.Length, item.DashOffset * scale);
        }

        dash = item.Dash;
        dashOffset = item.DashOffset;
    }

    private void ClearDash()
    {
        if (dash >= 0)
        {
            Cairo.SetDash(cr, null, 0, 0);
            dash = -1;
        }
    }

    private void Fill(in DisplayItem item)
    {
        Trace(item);
        Cairo.SetFillRule(cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        if (item.Extra >= 0)
        {
            FillGradient(list.GradientOf(item));
            return;
        }

        SetColor(item.Color);
        Cairo.Fill(cr);
    }

    private void FillGradient(Gradient gradient)
    {
        Affine2 toDevice = map * gradient.Matrix;
        if (!toDevice.TryInvert(out Affine2 inverse))
        {
            SetColor(gradient.Stops[0].Color);
            Cairo.Fill(cr);
            return;
        }

        nint pattern = gradient.Radial
            ? Cairo.PatternCreateRadial(gradient.FocusX, gradient.FocusY, 0, 0, 0, 1)
            : Cairo.PatternCreateLinear(-1, 0, 1, 0);
        using var owner = new NativeHandle(pattern, &Cairo.PatternDestroy);
        foreach (GradientStop stop in gradient.Stops)
        {
            Cairo.PatternAddColorStop(
                pattern, stop.Offset, stop.Color.R / 255.0, stop.Color.G / 255.0, stop.Color.B / 255.0, stop.Color.A / 255.0);
        }

        CairoMatrix matrix = ToCairo(inverse);
        Cairo.PatternSetMatrix(pattern, &matrix);
        Cairo.SetSource(cr, pattern);
        Cairo.Fill(cr);
        hasColor = false;
    }

    private void Text(in DisplayItem item)
    {
        TextRun run = list.TextOf(item);
        Affine2 toDevice = map * run.Matrix;
        double area = Math.Abs(toDevice.Determinant);
        if (!(area > SmallestText * SmallestText) || !IsNear(toDevice.X0, toDevice.Y0))
        {
            return;
        }

        SetColor(item.Color);
        Cairo.Save(cr);

        // The run's y runs up, pango's down.
        CairoMatrix matrix = ToCairo(toDevice);
        matrix.Xy = -matrix.Xy;
        matrix.Yy = -matrix.Yy;
        Cairo.Transform(cr, &matrix);
        if (settings.ExactText)
        {
            engine.Trace(cr, run);
            Cairo.SetFillRule(cr, CairoFillRule.Winding);
            Cairo.Fill(cr);
        }
        else
        {
            engine.Show(cr, run);
        }

        Cairo.Restore(cr);
    }

    private void Image(in DisplayItem item)
    {
        PlacedImage image = list.ImageOf(item);
        nint surface = Cairo.ImageSurfaceCreate(CairoFormat.Argb32, image.Width, image.Height);
        using var owner = new NativeHandle(surface, &Cairo.SurfaceDestroy);
        Cairo.Check(Cairo.SurfaceStatus(surface), "placing an image");
        int stride = Cairo.ImageSurfaceGetStride(surface);
        byte* data = Cairo.ImageSurfaceGetData(surface);
        for (int y = 0; y < image.Height; y++)
        {
            image.Pixels.AsSpan(y * image.Width * 4, image.Width * 4).CopyTo(new Span<byte>(data + ((long)y * stride), stride));
        }

        Cairo.SurfaceMarkDirty(surface);
        Cairo.Save(cr);
        var toUnit = new Affine2(1.0 / image.Width, 0, 0, -1.0 / image.Height, 0, 1);
        CairoMatrix matrix = ToCairo(map * image.Matrix * toUnit);
        Cairo.Transform(cr, &matrix);
        Cairo.SetSourceSurface(cr, surface, 0, 0);
        if (Filters.TryGetValue(settings.Interpolation, out CairoFilter filter))
        {
            Cairo.PatternSetFilter(Cairo.GetSource(cr), filter);
        }
        else if (image.Sharp)
        {
            Cairo.PatternSetFilter(Cairo.GetSource(cr), CairoFilter.Nearest);
        }

        Cairo.PaintWithAlpha(cr, image.Opacity);
        Cairo.Restore(cr);
        hasColor = false;
    }

    private void PushClip(in DisplayItem item)
    {
        Cairo.Save(cr);
        Trace(item);
        Cairo.SetFillRule(cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        Cairo.Clip(cr);
    }

    private void Trace(in DisplayItem item)
    {
        Cairo.NewPath(cr);
        ReadOnlySpan<double> c = list.CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in list.VerbsOf(item))
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Map(c, at, out double mx, out double my);
                    Cairo.MoveTo(cr, mx, my);
                    at += 2;
                    break;
                case PathVerb.Line:
                    Map(c, at, out double lx, out double ly);
                    Cairo.LineTo(cr, lx, ly);
                    at += 2;
                    break;
                case PathVerb.Curve:
                    Map(c, at, out double x1, out double y1);
                    Map(c, at + 2, out double x2, out double y2);
                    Map(c, at + 4, out double x3, out double y3);
                    Cairo.CurveTo(cr, x1, y1, x2, y2, x3, y3);
                    at += 6;
                    break;
                default:
                    Cairo.ClosePath(cr);
                    break;
            }
        }
    }

    private void Map(ReadOnlySpan<double> c, int at, out double x, out double y)
    {
        double u = c[at];
        double v = c[at + 1];
        x = Math.Clamp((map.Xx * u) + (map.Xy * v) + map.X0, -FarAway, FarAway);
        y = Math.Clamp((map.Yx * u) + (map.Yy * v) + map.Y0, -FarAway, FarAway);
    }

    private static bool IsNear(double x, double y) => Math.Abs(x) < FarAway && Math.Abs(y) < FarAway;

    private void SetColor(Rgba value)
    {
        if (!hasColor || value != color)
        {
            Cairo.SetSourceRgba(cr, value.R / 255.0, value.G / 255.0, value.B / 255.0, value.A / 255.0);
            color = value;
            hasColor = true;
        }
    }

    /// <summary>After a restore the context is back at what held before the clip.</summary>
    private void ForgetState()
    {
        hasColor = false;
        lineWidth = -1;
        look = null;
        dash = int.MaxValue;
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
