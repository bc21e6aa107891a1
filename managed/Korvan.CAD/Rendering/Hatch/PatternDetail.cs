using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Hatch;

/// <summary>
/// Draws hatched areas for the scale of a page. Lines so close that they cover each other are one filled area, dashes
/// so short that they run together are one line, and only what the page shows is drawn.
/// </summary>
internal sealed class PatternDetail
{
    /// <summary>Lines nearer to each other than this share of their width leave no gap that could be seen.</summary>
    private const double ClosestLines = 0.5;

    /// <summary>How far lines may reach outside of a page, in sizes of the page.</summary>
    private const double FarPages = 2;

    /// <summary>The distance of chords from curves, in device units.</summary>
    private const double Tolerance = 0.1;

    private readonly DrawingList _list;
    private readonly PaintSettings _settings;
    private readonly Bounds2? _window;
    private readonly double _scale;
    private readonly PathBuffer _local = new();
    private readonly PathBuffer _lines = new();

    private PatternDetail(DrawingList list, in PaintSettings settings, Bounds2? window)
    {
        _list = list;
        _settings = settings;
        _window = window;
        _scale = Math.Sqrt(Math.Abs(settings.ToDevice.Determinant));
    }

    /// <summary>Replaces the hatched areas of a list by lines and fills, and lines that reach far outside of the window
    /// by their parts near it.</summary>
    /// <param name="list">The list.</param>
    /// <param name="settings">How it is put on its page.</param>
    /// <param name="window">The part of the drawing that can be seen; null for all.</param>
    internal static void Resolve(DrawingList list, in PaintSettings settings, Bounds2? window)
    {
        if (list.HasSymbols)
        {
            list.Definitions.Resolve(new PatternDetail(list.Definitions, settings, null).Draw, null);
        }

        var detail = new PatternDetail(list, settings, window);
        list.Resolve(detail.Draw, window is Bounds2 page ? detail.Near(page) : null);
    }

    private DrawingList.NearBox? Near(in Bounds2 page)
    {
        double margin = FarPages * (page.Width + page.Height);
        return page.IsEmpty || !double.IsFinite(margin) ? null
            : new DrawingList.NearBox(
                Bounds2.Of(page.MinX - margin, page.MinY - margin, page.MaxX + margin, page.MaxY + margin),
                Tolerance * _settings.Coarseness / _scale);
    }

    private void Draw(in DisplayItem item, PatternArea area, PathBuffer outline, Bounds2? clip)
    {
        Bounds2? visible = clip is Bounds2 inner && _window is Bounds2 outer ? inner.Clip(outer) : clip ?? _window;
        double width = _settings.WidthOf(item);
        var seen = new List<HatchLine>(area.Lines.Count);
        double uncovered = 1;
        double gaps = 1;
        foreach (HatchLine line in area.Lines)
        {
            (double spacing, double stretch) = OnDevice(area.Map, line);
            (double period, double drawn) = Dashes(line, stretch, width);
            double covered = spacing > 0 ? Math.Min(1, width / spacing * drawn) : 0;
            if (spacing > 0 && spacing < ClosestLines * width)
            {
                uncovered *= 1 - covered;
            }
            else
            {
                gaps *= 1 - covered;
                seen.Add(period < ClosestLines * width ? line with { Dashes = [] } : line);
            }
        }

        Tone(item, outline, 1 - uncovered);
        if (uncovered == 0 || seen.Count == 0)
        {
            return;
        }

        _local.Clear();
        if (PatternFill.TryFill(area.Rings, seen, _local, visible is Bounds2 part ? Local(area, part) : null))
        {
            _lines.Clear();
            _lines.AppendMapped(_local, area.Map, area.Elevation);
            _list.Stroke(
                _lines,
                new StrokeAttributes
                {
                    Color = item.Color,
                    LineWeight = item.LineWeight,
                    Style = item.Style,
                    Dash = -1,
                    Layer = item.Layer,
                });
            return;
        }

        // Too many lines for any page.
        Tone(item, outline, 1 - gaps);
    }

    /// <summary>Fills the area as lines that cover a share of it appear from afar.</summary>
    private void Tone(in DisplayItem item, PathBuffer outline, double covered)
    {
        byte alpha = (byte)Math.Round(item.Color.A * covered);
        if (alpha > 0)
        {
            _list.Fill(outline, item.Color.WithAlpha(alpha), item.Layer, evenOdd: true);
        }
    }

    /// <summary>The distance of neighbouring lines and the scale of lengths along them, in device units.</summary>
    private (double Spacing, double Stretch) OnDevice(in Affine3 map, in HatchLine line)
    {
        Vec2 along = Vec2.Polar(line.Angle);
        double stretch = map.ProjectVector(along.X, along.Y).Length;
        double area = Math.Abs((map.AxisX.X * map.AxisY.Y) - (map.AxisX.Y * map.AxisY.X));
        double spacing = Math.Abs(Vec2.Dot(line.Offset, along.Left)) * area / stretch;
        return (spacing * _scale, stretch * _scale);
    }

    /// <summary>The length after which dashes repeat, and the share of it that is drawn, with the ends of the
    /// dashes.</summary>
    private (double Period, double Drawn) Dashes(in HatchLine line, double stretch, double width)
    {
        double period = 0;
        double drawn = 0;
        double ends = _settings.Caps == LineCaps.Butt ? 0 : width;
        foreach (double dash in line.Dashes)
        {
            period += Math.Abs(dash) * stretch;
            drawn += dash >= 0 ? (dash * stretch) + ends : 0;
        }

        return period > 0 ? (period, Math.Min(1, drawn / period)) : (double.MaxValue, 1);
    }

    /// <summary>The corners of the visible part in the plane of the hatch; null where it has no such corners.</summary>
    private static Vec2[]? Local(PatternArea area, in Bounds2 part)
    {
        Affine3 m = area.Map;
        Vec2 origin = m.Project(0, 0, area.Elevation);
        var toPage = new Affine2(m.AxisX.X, m.AxisX.Y, m.AxisY.X, m.AxisY.Y, origin.X, origin.Y);
        return part.IsFinite && !part.IsEmpty && toPage.TryInvert(out Affine2 back)
            ? [back.Point(part.MinX, part.MinY), back.Point(part.MaxX, part.MinY), back.Point(part.MaxX, part.MaxY),
                back.Point(part.MinX, part.MaxY)]
            : null;
    }
}
