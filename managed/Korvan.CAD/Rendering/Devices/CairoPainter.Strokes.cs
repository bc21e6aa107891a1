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

    /// <summary>Pages from which on a line leads far away from its page.</summary>
    private const double FarLine = 4;
    private const double BorderPixels = 4;

    private readonly PathBuffer _far = new();
    private readonly PathBuffer _dashes = new();

    private void Stroke(in DisplayItem item)
    {
        if (item.TextHeight > 0 && _skipsStrokes)
        {
            return;
        }

        double width = _settings.WidthOf(item);
        StrokeStyle style = _list.StyleOf(item) ?? _settings.StrokeStyle;
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

        bool isSplit = isDashed && TraceDashes(item, width);
        if (!isSplit)
        {
            Trace(item);
        }

        Budget.Step(1 + (item.VerbCount / VerbsPerStep));
        SetColor(item.Color);
        if (width != _lineWidth)
        {
            Cairo.SetLineWidth(_cr, width);
            _lineWidth = width;
        }

        SetStyle(style);
        SetDash(item, isDashed && !isSplit);
        Cairo.Stroke(_cr);
    }

    /// <summary>Makes the dashes on the page the path, for a line that leads far away from it: cairo would walk all of
    /// them.</summary>
    private bool TraceDashes(in DisplayItem item, double width)
    {
        double pageWidth = _target.ThinLines.Width;
        double border = (2 * width) + BorderPixels;
        double reach = Math.Max(pageWidth, _rows.End) * FarLine;
        if (!IsFar(item, reach))
        {
            return false;
        }

        _far.Clear();
        _far.AppendMapped(_list.VerbsOf(item), _list.CoordsOf(item), _map);
        double[] lengths = Array.ConvertAll(_list.DashOf(item), length => length * _scale);
        double tolerance = DefaultTolerance * _settings.Coarseness;
        Bounds2 visible = Bounds2.Of(-border, _rows.First - border, pageWidth + border, _rows.End + border);
        if (!DashSplitter.TrySplit(_far, lengths, item.DashOffset * _scale, tolerance, _dashes, visible))
        {
            return false;
        }

        UseCairo();
        Cairo.NewPath(_cr);
        Trace(_dashes.Verbs, _dashes.Coords, Affine2.Identity);
        return true;
    }

    private bool IsFar(in DisplayItem item, double reach)
    {
        ReadOnlySpan<double> c = _list.CoordsOf(item)[..CoordCount(item)];
        for (int at = 0; at < c.Length; at += 2)
        {
            Vec2 p = _map.Point(c[at], c[at + 1]);
            if (!(Math.Abs(p.X) < reach && Math.Abs(p.Y) < reach))
            {
                return true;
            }
        }

        return false;
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
}
