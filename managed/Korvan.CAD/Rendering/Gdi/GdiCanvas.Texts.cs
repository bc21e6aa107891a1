using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <content>Lines of text.</content>
internal sealed partial class GdiCanvas
{
    private const int UpdatesPosition = 1;
    private const int RightAligned = 2;
    private const int Centered = 6;
    private const int OnBottom = 8;
    private const int OnBaseline = 24;

    // The parts of an em above and below the line, of a common face.
    private const double Ascent = 0.905;
    private const double Descent = 0.212;

    /// <summary>Draws a line of text.</summary>
    /// <param name="text">The text.</param>
    /// <param name="at">The point that the alignment refers to, unless that is the position of the moment.</param>
    /// <param name="width">The width in logical units that the metafile states; 0 for that of the font.</param>
    internal void Text(string text, Vec2 at, double width)
    {
        string shown = text.TrimEnd('\0');
        if (shown.AsSpan().Trim().Length == 0 || _isPathOpen)
        {
            return;
        }

        Budget.Step(1 + (shown.Length / 16));
        bool moves = (State.TextAlign & UpdatesPosition) != 0;
        (Affine2 line, double em) = LineAt(moves ? State.Position : at);
        int font = _target.Engine.Font(State.Font.Face);
        double natural = _target.Engine.Advance(font, shown);
        if (!(natural > 0) || !(em > 0))
        {
            return;
        }

        const double narrowest = 0.5, widest = 2;
        double factor = width > 0 ? Math.Clamp(width / (natural * em), narrowest, widest) : 1;
        double advance = natural * factor;
        double x = (State.TextAlign & Centered) switch { Centered => -advance / 2, RightAligned => -advance, _ => 0 };
        double y = (State.TextAlign & OnBaseline) switch { OnBaseline => 0, OnBottom => Descent, _ => -Ascent };
        Affine2 matrix = line * new Affine2(1, 0, 0, 1, x, y);
        PutBackground(matrix, advance);
        Put(shown, font, matrix * new Affine2(factor, 0, 0, 1, 0, 0), natural);
        PutBars(matrix, advance);
        if (moves)
        {
            State.Position += new Vec2(advance * em, 0);
        }
    }

    /// <summary>The map from ems along and above a line of text to the page, and the em in logical units. Characters
    /// are upright on the device, however the axes of the window run.</summary>
    private (Affine2 Line, double Em) LineAt(Vec2 at)
    {
        Affine2 map = Map;
        Vec2 scale = PageScale;
        Vec2 origin = map.Point(at);
        double em = State.Font.Height < 0 ? -State.Font.Height : State.Font.Height / (Ascent + Descent);
        Vec2 right = new Vec2(map.Xx, map.Yx) * (em * Math.Sign(scale.X));
        Vec2 up = new Vec2(map.Xy, map.Yy) * (em * -Math.Sign(scale.Y));
        (double sin, double cos) = Math.SinCos(State.Font.Angle);
        Vec2 along = (right * cos) + (up * sin);
        Vec2 above = (up * cos) - (right * sin);
        return (new Affine2(along.X, along.Y, above.X, above.Y, origin.X, origin.Y), em);
    }

    private void Put(string text, int font, in Affine2 matrix, double advance)
    {
        double cap = _target.Engine.CapRatio(font);
        double own = _target.Engine.WidthOf(font);
        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = matrix.Point((corner & 1) * advance, (corner >> 1) * cap);
            box.Add(p.X, p.Y);
        }

        var run = new TextRun(text, _target.Engine.OutlineOf(font), matrix * new Affine2(own, 0, 0, 1, 0, 0), 0)
        {
            Advance = advance / own,
            CapHeight = cap,
        };
        SetClips();
        List.Text(run, Operated(State.TextColor), _target.Layer, box);
        Drawn++;
    }

    private void PutBackground(in Affine2 line, double advance)
    {
        if (State.BackgroundMode == GdiState.Opaque)
        {
            FillStrip(line, advance, -Descent, Ascent, State.Background);
        }
    }

    private void PutBars(in Affine2 line, double advance)
    {
        const double half = 0.03, under = -0.11, strike = 0.26;
        if (State.Font.IsUnderlined)
        {
            FillStrip(line, advance, under - half, under + half, State.TextColor);
        }

        if (State.Font.IsStruck)
        {
            FillStrip(line, advance, strike - half, strike + half, State.TextColor);
        }
    }

    private void FillStrip(in Affine2 line, double advance, double bottom, double top, Rgba color)
    {
        AddBox(new PathPen(Cleared(), Flat(line)), 0, top, advance, bottom);
        SetClips();
        List.Fill(_scratch, Operated(color), _target.Layer, evenOdd: false);
        Drawn++;
    }

    /// <summary>Fills the rectangle of a text with the colour of the background.</summary>
    internal void TextBox(double left, double top, double right, double bottom)
    {
        AddBox(new PathPen(Cleared(), Flat(Map)), left, top, right, bottom);
        SetClips();
        List.Fill(_scratch, State.Background, _target.Layer, evenOdd: false);
        Drawn++;
    }
}
