using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes a page as a Windows metafile ([MS-WMF]: Windows Metafile Format). Coordinates have 16 bits, there are no
/// curves, and clips are rectangles.
/// </summary>
internal sealed class WmfDocument : MetafilePlayer
{
    /// <summary>The longer side of a page in units of the file.</summary>
    private const double LongestSide = 30_000;
    private const int MaxPoints = 16_000;

    private readonly WmfRecords _records = new();
    private readonly Dictionary<(int Kind, uint Color, int Size, string Face), int> _handles = [];
    private readonly Stack<(int Pen, int Brush)> _saved = new();
    private readonly bool _textAsShapes;
    private (int Pen, int Brush) _selected = (-1, -1);
    private bool? _evenOdd;

    private WmfDocument(TextEngine engine, Page page, WmfOptions options, double unitsPerPoint)
        : base(engine, page, page.Notes, unitsPerPoint)
    {
        _textAsShapes = options.TextAsShapes;
    }

    internal static void Write(Stream output, TextEngine engine, Page page, WmfOptions options)
    {
        double unitsPerPoint = LongestSide / Math.Max(page.Width, page.Height);
        var document = new WmfDocument(engine, page, options, unitsPerPoint);
        document.Start();
        document.Play();
        document._records.Finish(output, (short)document.Width, (short)document.Height, unitsPerPoint * 72,
            document._handles.Count);
    }

    protected override void Line(PathBuffer path, Rgba color, double width, StrokeStyle style)
    {
        Select(ref _selected.Pen, Pen(color, width, style));
        foreach (FlatLine line in FlatLine.Of(path, Tolerance))
        {
            // A line of many points is cut into several that share their ends.
            for (int first = 0; first + 1 < line.Points.Length; first += MaxPoints - 1)
            {
                int count = Math.Min(MaxPoints, line.Points.Length - first);
                _records.AddPoints(WmfRecord.Polyline, [(short)count], line.Points.AsSpan(first, count), Round);
            }
        }
    }

    protected override void Area(PathBuffer path, Rgba color, bool evenOdd)
    {
        List<FlatLine> rings = FlatLine.Of(path, Tolerance);
        List<short> counts = [];
        List<Vec2> points = [];
        foreach (FlatLine ring in rings)
        {
            if (ring.Points.Length is > 2 and <= MaxPoints)
            {
                counts.Add((short)ring.Points.Length);
                points.AddRange(ring.Points);
            }
        }

        if (counts.Count == 0)
        {
            return;
        }

        // An area has an outline of its own, which has to be without ink.
        Select(ref _selected.Pen, NoPen());
        Select(ref _selected.Brush, Brush(color));
        if (_evenOdd != evenOdd)
        {
            _records.Add(WmfRecord.SetPolyFillMode, (short)(evenOdd ? 1 : 2), 0);
            _evenOdd = evenOdd;
        }

        _records.AddPoints(WmfRecord.PolyPolygon, [(short)counts.Count, .. counts], points.ToArray(), Round);
    }

    protected override void PushClip(PathBuffer path, bool evenOdd)
    {
        Bounds2 box = path.Bounds;
        if (!IsRectangle(path))
        {
            Notes.Add(RenderErrorCode.ClipApproximated, "regions were clipped by the boxes around them");
        }

        _saved.Push(_selected);
        _records.Add(WmfRecord.SaveDC);
        _records.Add(WmfRecord.IntersectClipRect, Round(box.MaxY), Round(box.MaxX), Round(box.MinY), Round(box.MinX));
    }

    protected override void PopClip()
    {
        _records.Add(WmfRecord.RestoreDC, -1);
        _selected = _saved.Pop();
        _evenOdd = null;
    }

    protected override void Text(in TextRun run, in Affine2 matrix, Rgba color)
    {
        double size = Math.Sqrt(Math.Abs(matrix.Determinant));
        if (_textAsShapes || !IsUpright(matrix, size) || !WmfRecords.CanEncode(run.Text))
        {
            Outline(run, matrix, color);
            return;
        }

        FontSpec font = Engine.SpecOf(run.Font);
        int tenths = (int)Math.Round(Math.Atan2(-matrix.Yx, matrix.Xx) * 1800 / Math.PI);
        int selected = -1;
        Select(ref selected, Font(font, (int)Math.Round(size), tenths));
        uint ink = ColorRef(Opaque(color));
        _records.Add(WmfRecord.SetTextColor, (short)ink, (short)(ink >> 16));
        _records.AddText(run.Text, Round(matrix.X0), Round(matrix.Y0), Advances(run, size));
    }

    protected override void Image(PlacedImage image, in Affine2 matrix)
    {
        if (Math.Abs(matrix.Yx) + Math.Abs(matrix.Xy) > 1e-6 * (Math.Abs(matrix.Xx) + Math.Abs(matrix.Yy)))
        {
            Notes.Add(RenderErrorCode.MissingPicture, "turned pictures, which the format has not");
            return;
        }

        // The matrix maps the unit square, y up, so that its y is negative where the picture stands upright.
        _records.AddPicture(
            image.Width, image.Height, BottomUp(image), Round(matrix.X0), Round(matrix.Y0 + matrix.Yy),
                Round(matrix.Xx), Round(-matrix.Yy));
    }

    private static uint ColorRef(Rgba color) => (uint)(color.R | (color.G << 8) | (color.B << 16));

    private static short Round(double value) => (short)Math.Round(Math.Clamp(value, short.MinValue, short.MaxValue));

    private static bool IsUpright(in Affine2 m, double size) =>
        Math.Abs(m.Xx + m.Yy) < 0.02 * size && Math.Abs(m.Yx - m.Xy) < 0.02 * size;

    private static bool IsRectangle(PathBuffer path)
    {
        ReadOnlySpan<double> c = path.Coords;
        for (int i = 2; i + 1 < c.Length; i += 2)
        {
            if (c[i] != c[i - 2] && c[i + 1] != c[i - 1])
            {
                return false;
            }
        }

        return c.Length is 8 or 10;
    }

    private void Start()
    {
        const short anisotropic = 8, transparent = 1, baseline = 24;
        _records.Add(WmfRecord.SetMapMode, anisotropic);
        _records.Add(WmfRecord.SetWindowOrg, 0, 0);
        _records.Add(WmfRecord.SetWindowExt, Round(Height), Round(Width));
        _records.Add(WmfRecord.SetBkMode, transparent, 0);
        _records.Add(WmfRecord.SetTextAlign, baseline, 0);
    }

    private void Select(ref int selected, int handle)
    {
        if (handle != selected)
        {
            _records.Add(WmfRecord.SelectObject, (short)handle);
            selected = handle;
        }
    }

    private int Pen(Rgba color, double width, StrokeStyle style)
    {
        int size = Math.Max(1, (int)Math.Round(width));
        int ends = PenEnds(style);
        return Handle((0, ColorRef(color), size, ends.ToString(CultureInfo.InvariantCulture)), () =>
            _records.AddPen((short)ends, Round(size), ColorRef(color)));
    }

    private int NoPen()
    {
        const short noInk = 5;
        return Handle((1, 0, 0, ""), () => _records.AddPen(noInk, 0, 0));
    }

    private int Brush(Rgba color)
    {
        uint ink = ColorRef(color);
        return Handle((2, ink, 0, ""), () => _records.Add(WmfRecord.CreateBrush, 0, (short)ink, (short)(ink >> 16), 0));
    }

    private int Font(FontSpec font, int size, int tenths)
    {
        string family = font.Family.Split(',')[0].Trim();
        uint traits = (uint)(((tenths + 3600) % 3600 << 2) | (font.Bold ? 1 : 0) | (font.Italic ? 2 : 0));
        return Handle((3, traits, size, family), () =>
            _records.AddFont(Round(-size), (short)tenths, font.Bold, font.Italic, family));
    }

    private int Handle((int Kind, uint Color, int Size, string Face) key, Action create)
    {
        if (!_handles.TryGetValue(key, out int handle))
        {
            if (_handles.Count >= short.MaxValue)
            {
                throw new RenderException(
                    $"The page needs more than {short.MaxValue} pens, brushes and fonts; a Windows metafile holds no "
                        + $"more.");
            }

            handle = _handles.Count;
            _handles.Add(key, handle);
            create();
        }

        return handle;
    }

    private short[] Advances(in TextRun run, double size)
    {
        var widths = new short[run.Text.Length];
        double[] ends = EndsOf(run);
        double before = 0;
        for (int i = 0, next; i < widths.Length; i = next)
        {
            next = i + LengthAt(run.Text, i);
            double until = Math.Round(ends[i] * size);
            widths[i] = Round(until - before);
            before = until;
        }

        return widths;
    }
}
