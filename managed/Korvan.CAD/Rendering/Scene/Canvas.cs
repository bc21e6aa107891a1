using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.PlotStyles;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Rendering.Text.Strokes;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// Puts strokes, fills, hatches and text of one page into its list. It knows pens and geometry, but no entity and
/// no table of the drawing.
/// </summary>
internal sealed class Canvas
{
    private const int MaxPatternTexts = 5_000;
    private const double DashesPerPathLimit = 100_000;

    private readonly PathBuffer _aligned = new();

    // Line types have texts along the path that is being drawn.
    private readonly PathBuffer _glyphs = new();

    internal Canvas(DrawingList list, TextEngine engine)
    {
        List = list;
        Engine = engine;
    }

    /// <summary>Gets or sets the list that is added to.</summary>
    internal DrawingList List { get; set; }

    internal TextEngine Engine { get; }

    /// <summary>Gets whether texts that are drawn by strokes are hidden text, too.</summary>
    internal bool HasHiddenText { get; init; }

    /// <summary>The face of a text style, for texts inside line types.</summary>
    internal Func<string, FontSpec> StyleFont { get; set; } = static _ => FontSpec.Default;

    /// <summary>Scratch for one path; whoever draws clears it first.</summary>
    internal PathBuffer Path { get; } = new();

    /// <summary>Scratch for the pieces of one text.</summary>
    internal List<TextPiece> Pieces { get; } = [];

    internal PathBuffer NewPath()
    {
        Path.Clear();
        return Path;
    }

    internal void Stroke(in Pen pen) => Stroke(Path, pen);

    /// <summary>Strokes with the line type of the pen; a path shorter than one period is drawn continuous.</summary>
    internal void Stroke(PathBuffer path, in Pen pen)
    {
        var style = new StrokeAttributes
        {
            Color = pen.Color,
            LineWeight = pen.LineWeight,
            Style = pen.Style,
            Dash = -1,
            Layer = pen.Layer,
        };
        double period = (pen.Pattern?.Period ?? 0) * pen.PatternScale;
        if (pen.Pattern == null || !(period > 0) || !double.IsFinite(period))
        {
            List.Stroke(path, style);
            return;
        }

        double length = PathMeasure.Length(path);
        if (length >= period && length / period * pen.Pattern.Lengths.Length < DashesPerPathLimit)
        {
            style.Dash = DashIndex(pen);
            path = Aligned(path, pen, length, period, out double offset, out double lead);
            style.DashOffset = (float)offset;
            if (pen.Pattern.Texts.Count > 0)
            {
                PatternTexts(path, pen, period, offset - lead);
            }
        }

        List.Stroke(path, style);
    }

    /// <summary>Thin bars, as under text: continuous, of a width in drawing units.</summary>
    internal void Bar(Vec2 from, Vec2 to, double thickness, Rgba color, int layer)
    {
        Vec2 half = (to - from).Unit().Left * (thickness / 2);
        PathBuffer path = NewPath();
        path.MoveTo(from + half);
        path.LineTo(to + half);
        path.LineTo(to - half);
        path.LineTo(from - half);
        path.Close();
        List.Fill(path, color, layer, evenOdd: false);
    }

    internal void Fill(in Pen pen, bool evenOdd)
    {
        if (pen.Plot is { HasFillPattern: true } style)
        {
            FillPlotted(pen, style);
            return;
        }

        List.Fill(Path, pen.Color, pen.Layer, evenOdd);
    }

    /// <summary>Fills loops that are given in their own plane.</summary>
    internal void FillLoops(List<HatchLoop> loops, in HatchPlane plane, in Pen pen, Gradient? gradient)
    {
        PathBuffer path = NewPath();
        foreach (HatchLoop loop in loops)
        {
            path.AppendMapped(loop.Path, plane.Map, plane.Elevation);
            path.Close();
        }

        if (gradient is null && pen.Plot is { HasFillPattern: true } style)
        {
            FillPlotted(pen, style);
            return;
        }

        List.Fill(path, pen.Color, pen.Layer, evenOdd: true, gradient);
    }

    /// <summary>Fills the path by the pattern of a plot style, in units of the paper.</summary>
    private void FillPlotted(in Pen pen, PlotStyle style)
    {
        const double tolerance = 0.05;
        (List<HatchLine> lines, double width) = PlotPatterns.FillOf(style, pen.PlotUnit);
        List<Vec2[]> rings = Polygons.Flatten(Path, tolerance * pen.PlotUnit);
        List.Pattern(
            Path, new PatternArea(rings, lines, Affine3.Identity, 0),
            new StrokeAttributes
            {
                Color = pen.Color,
                LineWeight = (float)width,
                Style = List.StyleIndex(new StrokeStyle(LineCaps.Butt, LineJoins.Miter)),
                Layer = pen.Layer,
            });
    }

    /// <summary>Draws a pattern in the loops.</summary>
    internal void FillPattern(List<HatchLoop> loops, IReadOnlyList<HatchLine> lines, in HatchPlane plane, in Pen pen)
    {
        PathBuffer path = NewPath();
        foreach (HatchLoop loop in loops)
        {
            path.AppendMapped(loop.Path, plane.Map, plane.Elevation);
            path.Close();
        }

        List<Vec2[]> rings = loops.ConvertAll(static loop => loop.Ring);
        List.Pattern(
            path, new PatternArea(rings, lines, plane.Map, plane.Elevation),
            new StrokeAttributes
            {
                Color = pen.Color,
                LineWeight = pen.LineWeight,
                Style = pen.Style,
                Layer = pen.Layer,
            });
    }

    /// <summary>One run at a place: the matrix maps the run's ems to the page. The pen draws the strokes of a stroke
    /// font.</summary>
    internal void Text(string text, int font, in Affine2 matrix, double letterSpacing, in Pen pen)
    {
        StrokeLine? strokes = Engine.StrokesOf(font, text, letterSpacing);
        double advance = strokes?.Advance ?? Engine.Advance(font, text, letterSpacing);
        double cap = Engine.CapRatio(font);
        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = matrix.Point((corner & 1) * advance, (corner >> 1) * cap);
            box.Add(p.X, p.Y);
        }

        if (text.AsSpan().Trim().Length == 0)
        {
            return;
        }

        int outline = Engine.OutlineOf(font);
        if (strokes is null)
        {
            double width = Engine.WidthOf(font);
            var run = new TextRun(text, outline, Wider(matrix, width), letterSpacing / width)
            {
                Advance = advance / width,
                CapHeight = cap,
            };
            PutOutlines(run, pen, box);
            return;
        }

        Bounds2 ink = box;
        ink.Add(Mapped(matrix, strokes.Ink));
        if (List.IsMeasured && List.Holds(ink, 0))
        {
            return;
        }

        double own = HasHiddenText ? Engine.HiddenAdvance(outline, text) : advance; // others look at its size alone
        if (own > 0 && advance > 0)
        {
            List.Text(
                new TextRun(text, outline, Wider(matrix, advance / own), 0)
                {
                    Advance = own,
                    CapHeight = cap,
                    IsHidden = true,
                },
                pen.Color, pen.Layer, box);
        }

        _glyphs.Clear();
        Engine.AddStrokes(font, text, letterSpacing, matrix, _glyphs);
        List.Stroke(_glyphs, new StrokeAttributes
        {
            Color = pen.Color,
            LineWeight = pen.LineWeight,
            Dash = -1,
            Layer = pen.Layer,
            TextHeight = (float)(cap * Math.Sqrt(Math.Abs(matrix.Determinant))),
        });
    }

    // Outlines are measured only where they may reach past everything else.
    private void PutOutlines(in TextRun run, in Pen pen, in Bounds2 box)
    {
        const double farthest = 2;
        Affine2 ems = run.Matrix;
        double reach = farthest * (Math.Abs(ems.Xx) + Math.Abs(ems.Xy) + Math.Abs(ems.Yx) + Math.Abs(ems.Yy));
        if (!box.IsFinite || List.Holds(box, reach))
        {
            List.Text(run, pen.Color, pen.Layer, box);
            return;
        }

        Bounds2 ink = Engine.InkOf(run);
        Bounds2 all = box;
        all.Add(Mapped(ems, ink));
        List.Text(run with { Ink = ink }, pen.Color, pen.Layer, all);
    }

    private static Bounds2 Mapped(in Affine2 map, in Bounds2 box)
    {
        Bounds2 mapped = Bounds2.Empty;
        for (int corner = 0; corner < 4 && !box.IsEmpty; corner++)
        {
            Vec2 p = map.Point((corner & 1) == 0 ? box.MinX : box.MaxX, (corner >> 1) == 0 ? box.MinY : box.MaxY);
            mapped.Add(p.X, p.Y);
        }

        return mapped;
    }

    private static Affine2 Wider(in Affine2 matrix, double factor) => matrix * new Affine2(factor, 0, 0, 1, 0, 0);

    private int DashIndex(in Pen pen)
    {
        double[] lengths = pen.Pattern!.Lengths;
        Span<double> scaled = stackalloc double[LinePattern.MaxElements];
        for (int i = 0; i < lengths.Length; i++)
        {
            scaled[i] = lengths[i] * pen.PatternScale;
        }

        return List.Dash(scaled[..lengths.Length]);
    }

    /// <summary>
    /// A straight line begins and ends with a dash. What whole periods leave over shortens the outer dashes by the same
    /// part, as long as half of each remains; else it lengthens them, by two ends that are drawn on their own.
    /// </summary>
    private PathBuffer Aligned(
        PathBuffer path, in Pen pen, double length, double period, out double offset, out double lead)
    {
        offset = 0;
        lead = 0;
        bool isLine = path.Verbs.Length == 2 && path.Verbs[1] == PathVerb.Line;
        double dash = pen.Pattern!.Lengths[0] * pen.PatternScale;
        double gap = period - dash;
        double rest = length - (Math.Floor((length - dash) / period) * period) - dash;
        if (!isLine || !(rest > 0) || dash <= 0)
        {
            return path;
        }

        if (rest >= gap)
        {
            offset = (dash - rest + gap) / 2;
            return path;
        }

        Vec2 from = new(path.Coords[0], path.Coords[1]);
        Vec2 to = new(path.Coords[2], path.Coords[3]);
        lead = rest / 2;
        Vec2 end = (to - from) * (lead / length);
        _aligned.Clear();
        _aligned.MoveTo(from);
        _aligned.LineTo(from + end);
        _aligned.MoveTo(from + end);
        _aligned.LineTo(to - end);
        _aligned.MoveTo(to - end);
        _aligned.LineTo(to);
        return _aligned;
    }

    private void PatternTexts(PathBuffer path, in Pen pen, double period, double offset)
    {
        foreach (PatternText text in pen.Pattern!.Texts)
        {
            var walk = new TextWalk(this, pen, text, period, ((text.At * pen.PatternScale) - offset) % period);
            PathMeasure.ForEachSegment(path, ref walk, static (ref TextWalk w, Vec2 a, Vec2 b) => w.Advance(a, b));
        }
    }

    private struct TextWalk
    {
        private readonly Canvas _canvas;
        private readonly Pen _pen;
        private readonly PatternText _text;
        private readonly double _period;
        private readonly int _font;
        private double _next;
        private double _walked;
        private int _count;

        internal TextWalk(Canvas canvas, in Pen pen, in PatternText text, double period, double first)
        {
            _canvas = canvas;
            _pen = pen;
            _text = text;
            _period = period;
            _font = canvas.Engine.Font(canvas.StyleFont(text.Style));
            _next = first < 0 ? first + period : first;
        }

        internal void Advance(Vec2 from, Vec2 to)
        {
            double length = (to - from).Length;
            for (; _next <= _walked + length && _count < MaxPatternTexts; _next += _period, _count++)
            {
                Vec2 direction = (to - from).Unit();
                Place(from + (direction * (_next - _walked)), direction);
            }

            _walked += length;
        }

        private readonly void Place(Vec2 at, Vec2 direction)
        {
            double scale = _pen.PatternScale;
            double em = _text.Height * scale / _canvas.Engine.CapRatio(_font);
            Vec2 origin = at + (direction * (_text.OffsetX * scale)) + (direction.Left * (_text.OffsetY * scale));
            double angle = Math.Atan2(direction.Y, direction.X) + _text.Rotation;
            (double sin, double cos) = Math.SinCos(angle);
            var matrix = new Affine2(cos * em, sin * em, -sin * em, cos * em, origin.X, origin.Y);
            _canvas.Text(_text.Text, _font, matrix, 0, _pen);
        }
    }
}
