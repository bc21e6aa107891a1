using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Strokes: thin lines directly, others by cairo, with their styles and dashes.</content>
internal sealed unsafe partial class CairoPainter
{
    /// <summary>Dashes shorter than this in device units are drawn as a continuous line.</summary>
    private const double ShortestPeriod = 0.75;

    /// <summary>What the outline of a dash takes in memory until it is filled.</summary>
    private const int BytesOfDash = 400;

    /// <summary>The width of a dash, in pixels, that takes twice as long as one without width.</summary>
    private const double WideDash = 50;

    protected override void PlayStroke(in DisplayItem item)
    {
        if (item.TextHeight > 0 && _skipsStrokes)
        {
            return;
        }

        double width = _settings.WidthOf(item);
        StrokeStyle style = List.StyleOf(item) ?? _settings.StrokeStyle;
        if (!Crosses(item, width * Math.Max(1, style.Join == LineJoins.Miter ? style.MiterLimit : 1)))
        {
            return;
        }

        bool isDashed = item.Dash >= 0 && Period(item) >= ShortestPeriod;
        bool isThin = width <= ThinLinePainter.MaxWidth && !isDashed && !_settings.Sharp;
        if (isThin && _clip.IsBox && TryDrawDirectly(item, width))
        {
            return;
        }

        CountWork(item, 2, StrokeEdgesPerStep);
        if (isDashed)
        {
            CountDashes(item, width);
        }

        Trace(item);
        SetColor(item.Color);
        if (width != _lineWidth)
        {
            Cairo.SetLineWidth(_cr, width);
            _lineWidth = width;
        }

        SetStyle(style);
        SetDash(item, isDashed);
        Cairo.Stroke(_cr);
    }

    private bool TryDrawDirectly(in DisplayItem item, double width) =>
        DrawDirectly(List.VerbsOf(item), List.CoordsOf(item), _map, width, item.Color);

    private bool DrawDirectly(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, double width, Rgba color)
    {
        UsePixels();
        return _target.ThinLines.TryStroke(
            verbs, coords, map, _clip.Box, width, color, DefaultTolerance * _settings.Coarseness);
    }

    /// <summary>Lets cairo finish what it draws, before pixels are changed without it.</summary>
    private void UsePixels()
    {
        if (!_isDirect)
        {
            Cairo.SurfaceFlush(_target.Surface);
            _isDirect = true;
        }
    }

    /// <summary>Tells cairo of what was drawn without it, before it draws.</summary>
    private void UseCairo()
    {
        if (_clip.Steps > 0)
        {
            Budget.Step(_clip.Steps);
        }

        if (_isDirect)
        {
            Cairo.SurfaceMarkDirty(_target.Surface);
            _isDirect = false;
        }
    }

    /// <summary>Counts the dashes of a path that can show, whose outlines are filled as one.</summary>
    private void CountDashes(in DisplayItem item, double width)
    {
        Bounds2 page = Bounds2.Of(
            -width, _rows.First - width, _target.ThinLines.Width + width, _rows.End + width);
        ReadOnlySpan<double> c = List.CoordsOf(item);
        double length = 0;
        for (int at = 2, count = CoordCount(item); at < count; at += 2)
        {
            Map(_map, c, at - 2, out double fromX, out double fromY);
            Map(_map, c, at, out double toX, out double toY);
            double x = Math.Min(Math.Max(fromX, toX), page.MaxX) - Math.Max(Math.Min(fromX, toX), page.MinX);
            double y = Math.Min(Math.Max(fromY, toY), page.MaxY) - Math.Max(Math.Min(fromY, toY), page.MinY);
            length += x >= 0 && y >= 0 ? new Vec2(x, y).Length : 0;
        }

        double dashes = Math.Min(length / Period(item) * List.DashOf(item).Length, int.MaxValue);
        Budget.Step((long)(dashes * (1 + (width / WideDash))));
        Budget.VerifyRoom((long)dashes * BytesOfDash);
    }

    private double Period(in DisplayItem item)
    {
        double period = 0;
        foreach (double length in List.DashOf(item))
        {
            period += length * _scale;
        }

        return period;
    }

    private void SetStyle(StrokeStyle value)
    {
        if (_style == value)
        {
            return;
        }

        Cairo.SetLineCap(_cr, (CairoLineCap)value.Cap);
        Cairo.SetLineJoin(_cr, (CairoLineJoin)value.Join);
        Cairo.SetMiterLimit(_cr, value.MiterLimit);
        _style = value;
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

        double[] lengths = List.DashOf(item);
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
}
