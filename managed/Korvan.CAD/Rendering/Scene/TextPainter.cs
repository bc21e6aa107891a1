using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Single-line text as the entities give it, in their object coordinates.</summary>
internal readonly record struct SingleLine
{
    internal required string Text { get; init; }

    internal required FontSpec Font { get; init; }

    internal required Vec3 First { get; init; }

    internal Vec3 Second { get; init; }

    internal required double Height { get; init; }

    internal double WidthFactor { get; init; }

    /// <summary>In radians.</summary>
    internal double Rotation { get; init; }

    /// <summary>In radians.</summary>
    internal double Oblique { get; init; }

    internal bool Backward { get; init; }

    internal bool UpsideDown { get; init; }

    internal HorizontalAlign Horizontal { get; init; }

    internal VerticalAlign Vertical { get; init; }

    internal bool ToleranceSymbols { get; init; }

    /// <summary>Gets whether characters are below each other. The rotation is that of the line, 270 degrees for one
    /// down the page.</summary>
    internal bool IsVertical { get; init; }
}

/// <summary>Places single-line and multi-line text on a canvas.</summary>
internal static class TextPainter
{
    private const double BarThickness = 0.06;
    private const double DescenderPart = 1.0 / 3.0;
    private const double SteepestOblique = 85 * Math.PI / 180;

    internal static void Draw(Canvas canvas, in SingleLine line, in Affine3 map, in Pen pen)
    {
        int font = canvas.Engine.Font(line.Font);
        List<TextPiece> pieces = Pieces(canvas, line);
        if (line.IsVertical)
        {
            DrawVertical(canvas, line, pieces, font, map, pen);
            return;
        }

        double em = line.Height / canvas.Engine.CapRatio(font);
        double advance = 0;
        foreach (TextPiece piece in pieces)
        {
            advance += canvas.Engine.Advance(font, piece.Text);
        }

        if (!(em > 0) || !(advance > 0) || !double.IsFinite(em))
        {
            return;
        }

        Frame frame = Place(line, em, advance);
        double slant = Math.Tan(Math.Clamp(line.Oblique, -SteepestOblique, SteepestOblique));
        var local = frame.Matrix * new Affine2(1, 0, slant, 1, 0, 0) * new Affine2(
            frame.EmX, 0, 0, frame.EmY, frame.ShiftX, frame.ShiftY);
        Affine2 plane = PlaneMap(map, line.First.Z);
        double pen0 = 0;
        foreach (TextPiece piece in pieces)
        {
            double width = canvas.Engine.Advance(font, piece.Text);
            Affine2 matrix = plane * local * new Affine2(1, 0, 0, 1, pen0, 0);
            canvas.Text(piece.Text, font, matrix, 0, pen);
            DrawBars(canvas, piece, matrix, width, canvas.Engine.CapRatio(font), pen);
            pen0 += width;
        }
    }

    // The line goes through the middle of the characters and begins at the top of the first one.
    private static void DrawVertical(
        Canvas canvas, in SingleLine line, List<TextPiece> pieces, int font, in Affine3 map, in Pen pen)
    {
        double em = line.Height / canvas.Engine.CapRatio(font);
        string text = string.Concat(pieces.ConvertAll(static piece => piece.Text));
        List<string> characters = [];
        for (TextElementEnumerator all = StringInfo.GetTextElementEnumerator(text); all.MoveNext();)
        {
            characters.Add(all.GetTextElement());
        }

        double step = line.Height * VerticalTextLayout.Step;
        double length = (step * (characters.Count - 1)) + line.Height;
        double shift = line.Horizontal switch
        {
            HorizontalAlign.Center or HorizontalAlign.Middle => length / 2,
            HorizontalAlign.Right => length,
            _ => 0,
        };
        bool isAtFirst = line.Horizontal is HorizontalAlign.Left or HorizontalAlign.Aligned or HorizontalAlign.Fit
            && line.Vertical == VerticalAlign.Baseline;
        Vec2 at = isAtFirst ? line.First.Xy : line.Second.Xy;
        (double sin, double cos) = Math.SinCos(line.Rotation + (Math.PI / 2));
        double factor = em * (line.WidthFactor > 0 ? line.WidthFactor : 1);
        Affine2 plane = PlaneMap(map, line.First.Z) * new Affine2(cos, sin, -sin, cos, at.X, at.Y);
        for (int i = 0; i < characters.Count && double.IsFinite(em); i++)
        {
            double width = canvas.Engine.Advance(font, characters[i]) * factor;
            double y = shift - line.Height - (i * step);
            canvas.Text(characters[i], font, plane * new Affine2(factor, 0, 0, em, -width / 2, y), 0, pen);
        }
    }

    /// <summary>Draws laid out text; the map takes the layout's plane to the page.</summary>
    internal static void Draw(
        Canvas canvas, MTextLayout layout, in Affine3 map, in Pen pen, Func<InlineColor, Rgba> colorOf)
    {
        Draw(canvas, layout.Runs, map, pen, colorOf);
        Affine2 plane = PlaneMap(map, 0);
        foreach (PlacedBar bar in layout.Bars)
        {
            Vec2 from = plane.Point(bar.X0, bar.Y0);
            Vec2 to = plane.Point(bar.X1, bar.Y1);
            double thickness = bar.Thickness * Math.Sqrt(Math.Abs(plane.Determinant));
            canvas.Bar(from, to, thickness, Color(bar.Color, pen, colorOf), pen.Layer);
        }
    }

    /// <summary>Draws runs that are placed in a plane.</summary>
    internal static void Draw(
        Canvas canvas, IEnumerable<PlacedRun> runs, in Affine3 map, in Pen pen, Func<InlineColor, Rgba> colorOf)
    {
        Affine2 plane = PlaneMap(map, 0);
        foreach (PlacedRun run in runs)
        {
            var local = new Affine2(run.Em * run.WidthFactor, 0, run.Em * run.Slant, run.Em, run.X, run.Y);
            Pen own = pen;
            own.Color = Color(run.Color, pen, colorOf);
            canvas.Text(run.Text, run.Font, plane * local, run.LetterSpacing, own);
        }
    }

    private static Rgba Color(InlineColor color, in Pen pen, Func<InlineColor, Rgba> colorOf) =>
        color.IsSet ? colorOf(color).WithAlpha(pen.Color.A) : pen.Color;

    private static Affine2 PlaneMap(in Affine3 map, double z)
    {
        Vec2 origin = map.Project(0, 0, z);
        return new Affine2(map.AxisX.X, map.AxisX.Y, map.AxisY.X, map.AxisY.Y, origin.X, origin.Y);
    }

    private static List<TextPiece> Pieces(Canvas canvas, in SingleLine line)
    {
        List<TextPiece> pieces = canvas.Pieces;
        pieces.Clear();
        TextCodes.Parse(line.Text, pieces);
        for (int i = 0; line.ToleranceSymbols && i < pieces.Count; i++)
        {
            pieces[i] = pieces[i] with { Text = ToleranceSymbols.Translate(pieces[i].Text) };
        }

        return pieces;
    }

    private readonly record struct Frame(Affine2 Matrix, double EmX, double EmY, double ShiftX, double ShiftY);

    /// <summary>The place of the text: fitted between two points, or aligned at one and rotated.</summary>
    private static Frame Place(in SingleLine line, double em, double advance)
    {
        double factor = line.WidthFactor > 0 ? line.WidthFactor : 1;
        bool justified = line.Horizontal != HorizontalAlign.Left || line.Vertical != VerticalAlign.Baseline;
        Vec2 span = (line.Second - line.First).Xy;
        if (line.Horizontal is HorizontalAlign.Aligned or HorizontalAlign.Fit && span.Length > 0)
        {
            double wide = span.Length / advance;
            double high = line.Horizontal == HorizontalAlign.Fit ? em : wide / factor;
            double angle = Math.Atan2(span.Y, span.X);
            return Mirrored(line, line.First.Xy, angle, wide, high, advance, 0, 0);
        }

        Vec2 anchor = justified && line.Horizontal is not (HorizontalAlign.Aligned or HorizontalAlign.Fit)
            ? line.Second.Xy
            : line.First.Xy;
        double width = advance * em * factor;
        double x = line.Horizontal switch
        {
            HorizontalAlign.Center or HorizontalAlign.Middle => -width / 2,
            HorizontalAlign.Right => -width,
            _ => 0,
        };
        return Mirrored(line, anchor, line.Rotation, em * factor, em, advance, x, Lift(line));
    }

    private static double Lift(in SingleLine line)
    {
        if (line.Horizontal == HorizontalAlign.Middle)
        {
            // The middle of capitals with what is below the baseline; "middle" of the verticals is that of capitals.
            return line.Height * (DescenderPart - 1) / 2;
        }

        return line.Vertical switch
        {
            VerticalAlign.Bottom => line.Height * DescenderPart,
            VerticalAlign.Middle => -line.Height / 2,
            VerticalAlign.Top => -line.Height,
            _ => 0,
        };
    }

    private static Frame Mirrored(
        in SingleLine line, Vec2 at, double angle, double emX, double emY, double advance, double x, double y)
    {
        (double sin, double cos) = Math.SinCos(angle);
        double flipX = line.Backward ? -1 : 1;
        double flipY = line.UpsideDown ? -1 : 1;
        var matrix = new Affine2(cos * flipX, sin * flipX, -sin * flipY, cos * flipY, at.X, at.Y);

        // Fitted text keeps to the span between its points whichever way it is written.
        bool fitted = line.Horizontal is HorizontalAlign.Aligned or HorizontalAlign.Fit;
        double shift = fitted && line.Backward ? -advance * emX : x;
        return new Frame(matrix, emX, emY, shift, y);
    }

    private static void DrawBars(
        Canvas canvas, in TextPiece piece, in Affine2 matrix, double width, double cap, in Pen pen)
    {
        double thickness = BarThickness * cap * Math.Sqrt(Math.Abs(matrix.Determinant));
        if (piece.Underline)
        {
            canvas.Bar(matrix.Point(0, -0.2 * cap), matrix.Point(width, -0.2 * cap), thickness, pen.Color, pen.Layer);
        }

        if (piece.Overline)
        {
            canvas.Bar(matrix.Point(0, 1.2 * cap), matrix.Point(width, 1.2 * cap), thickness, pen.Color, pen.Layer);
        }

        if (piece.Strike)
        {
            canvas.Bar(matrix.Point(0, 0.45 * cap), matrix.Point(width, 0.45 * cap), thickness, pen.Color, pen.Layer);
        }
    }
}
