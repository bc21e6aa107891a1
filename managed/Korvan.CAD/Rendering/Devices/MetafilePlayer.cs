using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>What metafiles have in common: opaque colours, lines without phase, pictures without
/// transparency.</summary>
internal abstract class MetafilePlayer : PagePlayer
{
    /// <summary>The pixels that take about as long as one step of the budget.</summary>
    private const int PixelsPerStep = 400;

    /// <summary>Characters that are measured together: what is measured for each grows with them.</summary>
    private const int LongestPiece = 64;

    /// <summary>How far a glyph may be from where the one before ends, in ems, to be drawn there.</summary>
    private const double SmallestOffset = 1e-4;

    private readonly PathBuffer _dashes = new();
    private readonly double _tolerance;

    protected MetafilePlayer(TextEngine engine, Page page, RenderNotes notes, double scale)
        : base(engine, page, notes, scale)
    {
        _tolerance = 0.01 * page.Settings.UnitsPerMillimetre * scale * page.Settings.Coarseness;
    }

    /// <summary>How far a chord may lie from its curve, in device units.</summary>
    protected double Tolerance => _tolerance;

    protected sealed override void Stroke(PathBuffer path, in DeviceStroke stroke)
    {
        Rgba color = Opaque(stroke.Color);
        double border = 2 * stroke.Width;
        Bounds2 page = Bounds2.Of(-border, -border, Width + border, Height + border);
        bool cut = stroke.Dash is not null
            && DashSplitter.TrySplit(path, stroke.Dash, stroke.DashOffset, Tolerance, _dashes, page);
        Line(cut ? _dashes : path, color, stroke.Width, stroke.Style);
    }

    /// <summary>Ends and joins as the flags of a pen ([MS-EMF] 2.1.25; those of [MS-WMF] 2.1.1.23 are the
    /// same).</summary>
    protected static int PenEnds(StrokeStyle style)
    {
        int cap = style.Cap switch { LineCaps.Butt => 0x200, LineCaps.Square => 0x100, _ => 0 };
        int join = style.Join switch { LineJoins.Miter => 0x2000, LineJoins.Bevel => 0x1000, _ => 0 };
        return cap | join;
    }

    protected sealed override void Fill(PathBuffer path, Rgba color, bool evenOdd) =>
        Area(path, Opaque(color), evenOdd);

    protected abstract void Line(PathBuffer path, Rgba color, double width, StrokeStyle style);

    protected abstract void Area(PathBuffer path, Rgba color, bool evenOdd);

    /// <summary>The pixels without transparency, on the colour of the page: three bytes each, blue first, the lowest
    /// line first, lines filled up to whole words.</summary>
    protected byte[] BottomUp(PlacedImage image)
    {
        Rgba paper = Settings.Background;
        int stride = ((image.Width * 3) + 3) / 4 * 4;
        Budget.Step(image.Width * (long)image.Height / PixelsPerStep);
        byte[] rows = new byte[(long)stride * image.Height];
        bool isOpaque = image.Opacity == 1;
        for (int y = 0; y < image.Height; y++)
        {
            Span<byte> row = rows.AsSpan((image.Height - 1 - y) * stride, image.Width * 3);
            ReadOnlySpan<byte> source = image.Pixels.AsSpan(y * image.Width * 4, image.Width * 4);
            for (int x = 0; x < image.Width; x++)
            {
                ReadOnlySpan<byte> pixel = source.Slice(x * 4, 4);
                if (isOpaque && pixel[3] == byte.MaxValue)
                {
                    pixel[..3].CopyTo(row[(x * 3)..]);
                    continue;
                }

                double rest = 1 - (pixel[3] / 255.0 * image.Opacity);
                row[x * 3] = Over(pixel[0], paper.B, image.Opacity, rest);
                row[(x * 3) + 1] = Over(pixel[1], paper.G, image.Opacity, rest);
                row[(x * 3) + 2] = Over(pixel[2], paper.R, image.Opacity, rest);
            }
        }

        return rows;
    }

    /// <summary>Where each character ends, in ems, by its index in the text; the second half of a pair has
    /// none.</summary>
    protected double[] EndsOf(in TextRun run)
    {
        double[] ends = new double[run.Text.Length];
        double before = 0;
        for (int start = 0, length; start < ends.Length; start += length)
        {
            length = Math.Min(LongestPiece, ends.Length - start);
            length -= length == LongestPiece && char.IsHighSurrogate(run.Text[start + length - 1]) ? 1 : 0;
            TextRun piece = run with { Text = run.Text.Substring(start, length) };
            if (!TryAddAdvances(piece, before, ends.AsSpan(start, length)))
            {
                for (int i = 0, next; i < length; i = next)
                {
                    next = i + LengthAt(piece.Text, i);
                    ends[start + i] = before + StartOf(piece, next);
                }
            }

            before += Engine.Advance(run.Font, piece.Text, run.LetterSpacing);
        }

        return ends;
    }

    // Where each character is a glyph, in the order of the text, the glyphs of the whole tell where they end.
    private bool TryAddAdvances(in TextRun run, double before, Span<double> ends)
    {
        if (run.LetterSpacing != 0 || Engine.OutlineOf(run.Font) != run.Font || Engine.WidthOf(run.Font) != 1)
        {
            return false;
        }

        int at = 0;
        double x = 0;
        foreach (ShapedRun part in Engine.Line(run).Runs)
        {
            foreach (ShapedGlyph glyph in part.Glyphs)
            {
                int length = LengthAt(run.Text, at);
                if (glyph.TextStart != at || glyph.TextLength != length || length == 0 || !glyph.IsAlone
                    || Math.Abs(glyph.X - x) > SmallestOffset)
                {
                    return false;
                }

                x += glyph.Advance;
                ends[at] = before + x;
                at += length;
            }
        }

        return at == run.Text.Length;
    }

    /// <summary>Where a character starts, in ems. What is kerned is the advance of the one before.</summary>
    private double StartOf(in TextRun run, int at)
    {
        int end = at + LengthAt(run.Text, at);
        double until = Engine.Advance(run.Font, run.Text[..end], run.LetterSpacing);
        return at == end ? until : until - Engine.Advance(run.Font, run.Text[at..end], run.LetterSpacing);
    }

    protected static int LengthAt(string text, int at) =>
        at >= text.Length ? 0 : char.IsHighSurrogate(text[at]) && at + 1 < text.Length ? 2 : 1;

    // The pixels have their opacity multiplied in.
    private static byte Over(byte part, byte paper, double opacity, double rest) =>
        (byte)Math.Clamp(Math.Round((part * opacity) + (paper * rest)), 0, 255);
}
