using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>The pixels of some rows of a page.</summary>
/// <param name="First">The first one; four bytes each, blue first, alpha multiplied in.</param>
/// <param name="Width">The pixels of a row.</param>
/// <param name="PageHeight">All rows of the page.</param>
/// <param name="Stride">The bytes of a row.</param>
internal readonly record struct PixelRows(nint First, int Width, int PageHeight, int Stride);

/// <summary>
/// Draws thin continuous lines straight into pixels, antialiased by the area that a line covers of each pixel. General
/// strokers outline a path first, which costs many times as much where the outline is a pixel wide.
/// </summary>
internal sealed unsafe class ThinLinePainter
{
    /// <summary>The widest line, in pixels, whose ends and corners do not show their form.</summary>
    internal const double MaxWidth = 1.5;

    /// <summary>The largest band that has a second plane for the coverage of a path.</summary>
    private const long MaxPlane = 64_000_000;
    private const int MaxCurveLines = 4_096;
    private const int PixelsPerLine = 8; // what takes as long as one line of no length
    private const int PixelsPerStep = 256;
    private const int Opaque = 255;
    private const uint Channels = 0x00ff_00ff;

    /// <summary>Lines shorter than this, in pixels, meet so often that it shows where they overlap.</summary>
    private const double ShortLine = 12;

    /// <summary>Parts of a pixel in which places across a line are counted.</summary>
    private const int Part = 256;

    private readonly byte* _first;
    private readonly int _stride;
    private readonly int _width;
    private readonly int _pageHeight;
    private readonly RowRange _rows;
    private byte[] _plane = [];
    private int[] _touched = new int[256];
    private int _touchedCount;
    private double _pixels;
    private bool _usesPlane;
    private double _left;
    private double _top;
    private double _right;
    private double _bottom;
    private double _half;
    private Rgba _color;
    private uint _redBlue;
    private uint _alphaGreen;

    /// <summary>A painter of rows of a page.</summary>
    /// <param name="pixels">The pixels of the rows.</param>
    /// <param name="rows">The rows of the page.</param>
    internal ThinLinePainter(in PixelRows pixels, RowRange rows)
    {
        _first = (byte*)pixels.First;
        _stride = pixels.Stride;
        _width = pixels.Width;
        _pageHeight = pixels.PageHeight;
        _rows = rows;
    }

    /// <summary>Gets the pixels of a row.</summary>
    internal int Width => _width;

    private int Height => _rows.End - _rows.First;

    /// <summary>Returns the pixels of a row of the page.</summary>
    internal Span<int> Row(int y) => new(_first + ((long)(y - _rows.First) * _stride), _width);

    /// <summary>Draws a path.</summary>
    /// <param name="verbs">The verbs of the path.</param>
    /// <param name="coords">Its coordinates.</param>
    /// <param name="map">The map to pixels of the page.</param>
    /// <param name="clip">The part of the page that can be drawn on, in pixels.</param>
    /// <param name="width">The width of the line in pixels.</param>
    /// <param name="color">The colour.</param>
    /// <param name="tolerance">How far chords may lie from curves, in pixels.</param>
    /// <returns>Whether the path was drawn; a band too large for paths of several lines leaves them to
    /// others.</returns>
    internal bool TryStroke(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map, in Bounds2 clip, double width,
        Rgba color, double tolerance)
    {
        _usesPlane = NeedsPlane(verbs, coords, map, color, tolerance);
        if (_usesPlane && !HasPlane())
        {
            return false;
        }

        // Whole pixels: a line that ends at the border of a clip ends with one.
        _left = Math.Max(0, Math.Round(clip.MinX));
        _right = Math.Min(_width, Math.Round(clip.MaxX));
        _top = Math.Max(_rows.First, Math.Round(clip.MinY)) - _rows.First;
        _bottom = Math.Min(_rows.End, Math.Round(clip.MaxY)) - _rows.First;
        _half = width / 2;
        SetColor(color);
        if (_left < _right && _top < _bottom)
        {
            Walk(verbs, coords, map, tolerance);
            Flush();
        }

        return true;
    }

    /// <summary>Puts a colour over pixels of a row.</summary>
    /// <param name="x">The first pixel.</param>
    /// <param name="y">The row of the page.</param>
    /// <param name="coverage">How much of each pixel is covered, up to 255.</param>
    /// <param name="color">The colour.</param>
    internal void BlendRow(int x, int y, ReadOnlySpan<byte> coverage, Rgba color)
    {
        SetColor(color);
        uint* pixel = (uint*)(_first + ((long)(y - _rows.First) * _stride)) + x;
        foreach (byte covered in coverage)
        {
            if (covered > 0)
            {
                Blend(pixel, covered);
            }

            pixel++;
        }
    }

    private void SetColor(Rgba color)
    {
        _color = color;
        (_redBlue, _alphaGreen) = (((uint)color.R << 16) | color.B, (Opaque << 16) | (uint)color.G);
    }

    /// <summary>Returns whether the lines of a path have to be joined before they are drawn: where they are short or
    /// let the ground show through, pixels that two of them cover would be seen.</summary>
    private static bool NeedsPlane(
        ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map, Rgba color, double tolerance)
    {
        if (verbs.Length == 2 && verbs[1] == PathVerb.Line)
        {
            return false;
        }

        double length = 0;
        double lines = 0;
        Vec2 at = default;
        int i = 0;
        foreach (PathVerb verb in verbs)
        {
            if (verb == PathVerb.Close)
            {
                continue;
            }

            int points = verb == PathVerb.Curve ? 3 : 1;
            if (verb == PathVerb.Curve)
            {
                lines += Parts(
                    at, map.Point(c[i], c[i + 1]), map.Point(c[i + 2], c[i + 3]), map.Point(c[i + 4], c[i + 5]),
                    tolerance) - 1;
            }

            i += 2 * points;
            Vec2 to = map.Point(c[i - 2], c[i - 1]);
            length += verb == PathVerb.Move ? 0 : (to - at).Length;
            lines += verb == PathVerb.Move ? 0 : 1;
            at = to;
        }

        return color.A < Opaque || length < lines * ShortLine;
    }

    private bool HasPlane()
    {
        long size = (long)_width * Height;
        if (size > MaxPlane)
        {
            return false;
        }

        if (_plane.Length == 0)
        {
            _plane = new byte[size];
        }

        return true;
    }

    private void Walk(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map, double tolerance)
    {
        Vec2 start = default;
        Vec2 at = default;
        int i = 0;
        bool isDrawn = true;
        foreach (PathVerb verb in verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    Dot(at, isDrawn);
                    start = at = map.Point(c[i], c[i + 1]);
                    isDrawn = false;
                    i += 2;
                    break;
                case PathVerb.Line:
                    Vec2 end = map.Point(c[i], c[i + 1]);
                    Line(at, end);
                    (at, isDrawn) = (end, true);
                    i += 2;
                    break;
                case PathVerb.Curve:
                    Vec2 last = map.Point(c[i + 4], c[i + 5]);
                    Curve(at, map.Point(c[i], c[i + 1]), map.Point(c[i + 2], c[i + 3]), last, tolerance);
                    (at, isDrawn) = (last, true);
                    i += 6;
                    break;
                default:
                    Line(at, start);
                    (at, isDrawn) = (start, true);
                    break;
            }
        }

        Dot(at, isDrawn);
    }

    /// <summary>A point alone is drawn as a round end.</summary>
    private void Dot(Vec2 at, bool isDrawn)
    {
        if (!isDrawn)
        {
            Line(at, at);
        }
    }

    private void Curve(Vec2 a, Vec2 b, Vec2 c, Vec2 d, double tolerance)
    {
        int count = Parts(a, b, c, d, tolerance);
        Vec2 from = a;
        for (int i = 1; i <= count; i++)
        {
            double t = (double)i / count;
            double s = 1 - t;
            Vec2 to = (a * (s * s * s)) + (b * (3 * s * s * t)) + (c * (3 * s * t * t)) + (d * (t * t * t));
            Line(from, to);
            from = to;
        }
    }

    private static int Parts(Vec2 a, Vec2 b, Vec2 c, Vec2 d, double tolerance)
    {
        // The distance of a chord from a cubic is at most an eighth of its second derivative.
        double bend = Math.Max((a - (b * 2) + c).Length, (b - (c * 2) + d).Length);
        double parts = Math.Ceiling(Math.Sqrt(6 * bend / (8 * tolerance)));
        return parts < MaxCurveLines ? Math.Max(1, (int)parts) : MaxCurveLines;
    }

    private void Count(double length)
    {
        _pixels += Math.Min(length, _width + Height) + PixelsPerLine;
        if (_pixels >= PixelsPerStep)
        {
            Workload.Step((long)(_pixels / PixelsPerStep));
            _pixels = 0;
        }
    }

    private void Line(Vec2 a, Vec2 b)
    {
        (double ax, double bx) = Inside(a.X, b.X, _width);
        (double ay, double by) = Inside(a.Y, b.Y, _pageHeight);
        (a, b) = (new Vec2(ax, ay - _rows.First), new Vec2(bx, by - _rows.First));
        double dx = b.X - a.X;
        double dy = b.Y - a.Y;
        if (!double.IsFinite(dx + dy))
        {
            return;
        }

        Count(Math.Abs(dx) + Math.Abs(dy));
        if (Math.Abs(dx) >= Math.Abs(dy))
        {
            Span(a.X, a.Y, b.X, b.Y, _left, _right, _top, _bottom, isSteep: false);
        }
        else
        {
            Span(a.Y, a.X, b.Y, b.X, _top, _bottom, _left, _right, isSteep: true);
        }
    }

    /// <summary>A line along a border of the page, as frames are, would lose half of its width: it is moved inside.
    /// </summary>
    private (double From, double To) Inside(double from, double to, double end)
    {
        const double outside = 0.01;
        (double least, double most) = from < to ? (from, to) : (to, from);
        return most < _half && least > -outside ? (_half, _half)
            : least > end - _half && most < end + outside ? (end - _half, end - _half)
            : (from, to);
    }

    /// <summary>Goes along the axis on which the line is longer; the other one is the axis across.</summary>
    private void Span(
        double u0, double v0, double u1, double v1, double first, double end, double low, double high, bool isSteep)
    {
        if (u0 > u1)
        {
            (u0, v0, u1, v1) = (u1, v1, u0, v0);
        }

        double slope = u1 > u0 ? (v1 - v0) / (u1 - u0) : 0;
        double stretch = Math.Sqrt(1 + (slope * slope));
        double reach = _half * stretch;
        double ends = _half / stretch;
        (double start, double stop) = (Math.Max(u0 - ends, first), Math.Min(u1 + ends, end));

        // Where the line is beyond the area across, it need not be walked.
        if (slope != 0)
        {
            double enter = u0 + ((low - reach - 1 - v0) / slope);
            double leave = u0 + ((high + reach + 1 - v0) / slope);
            start = Math.Max(start, Math.Min(enter, leave));
            stop = Math.Min(stop, Math.Max(enter, leave));
        }

        if (!(start < stop))
        {
            return;
        }

        // Two places of a step stand for the slope in it.
        int width = (int)(2 * reach * Part);
        double shift = Math.Abs(slope) / 4;
        (int least, int most) = ((int)low, (int)high);
        double v = v0 + (((int)start + 0.5 - u0) * slope) - reach - shift;
        int second = (int)(2 * shift * Part);
        for (int u = (int)start; u < stop; u++, v += slope)
        {
            double share = 1;
            if (u < start || u + 1 > stop)
            {
                share = Math.Min(u + 1, stop) - Math.Max(u, start);
            }

            int at = (int)Math.Floor(v);
            int edge = (int)((v - at) * Part);
            int last = edge + width + second;
            for (int w = at; last > 0 && w < most; w++, edge -= Part, last -= Part)
            {
                if (w >= least)
                {
                    int covered = Overlap(edge, width) + Overlap(edge + second, width);
                    Cover(w, u, share < 1 ? (int)(covered * share) : covered, isSteep);
                }
            }
        }
    }

    /// <summary>The parts of a pixel that are covered from an edge on.</summary>
    private static int Overlap(int edge, int width)
    {
        int from = edge < 0 ? 0 : edge;
        int to = edge + width > Part ? Part : edge + width;
        return to > from ? to - from : 0;
    }

    /// <summary>Covers parts of a pixel, counted twice.</summary>
    private void Cover(int across, int along, int covered, bool isSteep)
    {
        int coverage = ((covered * Opaque) + Part) / (2 * Part);
        if (coverage <= 0)
        {
            return;
        }

        (int x, int y) = isSteep ? (across, along) : (along, across);
        if (_usesPlane)
        {
            Touch(x, y, coverage);
        }
        else
        {
            Blend((uint*)(_first + ((long)y * _stride)) + x, coverage);
        }
    }

    /// <summary>Notes the coverage by a path; where its lines meet, the larger one holds, so that no corner is
    /// darker.</summary>
    private void Touch(int x, int y, int coverage)
    {
        int index = (y * _width) + x;
        byte before = _plane[index];
        if (before == 0)
        {
            if (_touchedCount == _touched.Length)
            {
                Array.Resize(ref _touched, _touchedCount * 2);
            }

            _touched[_touchedCount++] = index;
        }

        _plane[index] = (byte)Math.Max(before, Math.Min(coverage, Opaque));
    }

    private void Flush()
    {
        for (int i = 0; i < _touchedCount; i++)
        {
            int index = _touched[i];
            (int y, int x) = Math.DivRem(index, _width);
            Blend((uint*)(_first + ((long)y * _stride)) + x, _plane[index]);
            _plane[index] = 0;
        }

        _touchedCount = 0;
    }

    /// <summary>Puts the colour over a pixel, two channels at a time.</summary>
    private void Blend(uint* pixel, int coverage)
    {
        uint alpha = Scaled(_color.A, (uint)(coverage > Opaque ? Opaque : coverage));
        uint left = Opaque - alpha;
        uint before = *pixel;
        uint even = Rounded(((before & Channels) * left) + (_redBlue * alpha));
        uint odd = Rounded((((before >> 8) & Channels) * left) + (_alphaGreen * alpha));
        *pixel = even | (odd << 8);
    }

    /// <summary>Divides both channels by 255, rounded.</summary>
    private static uint Rounded(uint pair)
    {
        uint half = pair + 0x0080_0080;
        return ((half + ((half >> 8) & Channels)) >> 8) & Channels;
    }

    /// <summary>A share of a byte, rounded: exactly a × b / 255.</summary>
    private static uint Scaled(uint a, uint b)
    {
        uint product = (a * b) + 128;
        return (product + (product >> 8)) >> 8;
    }
}
