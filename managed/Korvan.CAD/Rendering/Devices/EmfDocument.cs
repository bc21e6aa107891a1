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

/// <summary>Writes a page as an enhanced metafile ([MS-EMF]: Enhanced Metafile Format). Logical and device units are
/// 0.01 mm.</summary>
internal sealed class EmfDocument : MetafilePlayer
{
    private const double UnitsPerPoint = 2540 / 72.0;
    private const int ImageUnits = 1000;
    private const int MaxHandles = 60_000;

    // Texts of more sizes and angles become outlines: lines and areas need handles as well.
    private const int MaxFonts = 20_000;
    private const double UniformTolerance = 0.01;

    private readonly EmfRecords _records = new();
    private readonly Dictionary<(EmfObject Kind, uint Color, int Size, string Face), int> _handles = [];
    private readonly Stack<(int Pen, int Brush, int Font)> _saved = new();
    private readonly List<int> _points = [];
    private readonly bool _textAsShapes;
    private int _coord;
    private (int Pen, int Brush, int Font) _selected;
    private int _fonts;
    private bool? _evenOdd;

    private EmfDocument(TextEngine engine, Page page, EmfOptions options)
        : base(engine, page, page.Notes, UnitsPerPoint)
    {
        _textAsShapes = options.TextAsShapes;
    }

    private enum EmfObject
    {
        Pen,
        Brush,
        Font,
    }

    internal static void Write(Stream output, TextEngine engine, Page page, EmfOptions options)
    {
        var document = new EmfDocument(engine, page, options);
        document.Start();
        document.Play();
        document._records.Finish(output, (int)Math.Ceiling(document.Width), (int)Math.Ceiling(document.Height),
            document._handles.Count + 1, page.Name);
    }

    protected override void Line(PathBuffer path, Rgba color, double width, StrokeStyle style)
    {
        SelectPen(color, width, style);
        if (path.Verbs.Contains(PathVerb.Close))
        {
            AddPath(path);
            _records.Add(EmfRecord.StrokePath, _records.Everything);
            return;
        }

        // Open lines have records of their own, which are shorter, and which no reader takes for closed.
        _coord = 0;
        foreach (Range piece in OpenPieces(path))
        {
            AddOpenLine(path, piece);
        }
    }

    protected override void Area(PathBuffer path, Rgba color, bool evenOdd)
    {
        SelectBrush(color);
        SetFillMode(evenOdd);
        AddPath(path);
        _records.Add(EmfRecord.FillPath, _records.Everything);
    }

    protected override void PushClip(PathBuffer path, bool evenOdd)
    {
        const int and = 1;
        _saved.Push(_selected);
        _records.Add(EmfRecord.SaveDC);
        SetFillMode(evenOdd);
        AddPath(path);
        _records.Add(EmfRecord.SelectClipPath, and);
    }

    protected override void PopClip()
    {
        _records.Add(EmfRecord.RestoreDC, -1);
        _selected = _saved.Pop();
        _evenOdd = null;
    }

    protected override void Text(in TextRun run, in Affine2 matrix, Rgba color)
    {
        if (_textAsShapes)
        {
            Outline(run, matrix, color);
            return;
        }

        double width = Math.Sqrt((matrix.Xx * matrix.Xx) + (matrix.Yx * matrix.Yx));
        double height = Math.Abs(matrix.Determinant) / width;
        if (!(height > 0))
        {
            return;
        }

        // A font has no mirrored, slanted or stretched characters, and many readers pass over transforms of text.
        if (!IsUniform(matrix, height)
            || !TrySelectFont(Engine.SpecOf(run.Font), Math.Max(1, Round(height)), TenthsOfDegree(matrix)))
        {
            Outline(run, matrix, color);
            return;
        }

        _records.Add(EmfRecord.SetTextColor, (int)ColorRef(Opaque(color)));
        _records.AddText(run.Text, Round(matrix.X0), Round(matrix.Y0), Advances(run, height));
    }

    protected override void Image(PlacedImage image, in Affine2 matrix)
    {
        SetTransform(matrix * new Affine2(1.0 / ImageUnits, 0, 0, -1.0 / ImageUnits, 0, 1));
        _records.AddImage(image.Width, image.Height, BottomUp(image), ImageUnits);
        ResetTransform();
    }

    private static uint ColorRef(Rgba color) => (uint)(color.R | (color.G << 8) | (color.B << 16));

    private static int Round(double value) => (int)Math.Round(Math.Clamp(value, -1e8, 1e8));

    private void Start()
    {
        const int advanced = 2, transparent = 1, baseline = 24, textMode = 1;
        _records.Begin();
        _records.Add(EmfRecord.SetGraphicsMode, advanced);
        _records.Add(EmfRecord.SetMapMode, textMode);
        _records.Add(EmfRecord.SetBkMode, transparent);
        _records.Add(EmfRecord.SetTextAlign, baseline);
    }

    private void SetTransform(in Affine2 m) => _records.AddTransform(m);

    private void ResetTransform() => _records.AddTransform(Affine2.Identity);

    private void SetFillMode(bool evenOdd)
    {
        if (_evenOdd != evenOdd)
        {
            _records.Add(EmfRecord.SetPolyFillMode, evenOdd ? 1 : 2);
            _evenOdd = evenOdd;
        }
    }

    private void SelectPen(Rgba color, double width, StrokeStyle style)
    {
        const int geometric = 0x10000;
        int size = Math.Max(1, Round(width));
        int ends = geometric | PenEnds(style);
        int handle = Handle((EmfObject.Pen, ColorRef(color), size, ends.ToString(CultureInfo.InvariantCulture)), at =>
            _records.AddPen(at, ends, size, ColorRef(color)));
        if (handle != _selected.Pen)
        {
            _records.Add(EmfRecord.SelectObject, handle);
            _selected.Pen = handle;
        }
    }

    private void SelectBrush(Rgba color)
    {
        int handle = Handle(
            (EmfObject.Brush, ColorRef(color), 0, ""), at =>
                _records.Add(EmfRecord.CreateBrushIndirect, at, 0, (int)ColorRef(color), 0));
        if (handle != _selected.Brush)
        {
            _records.Add(EmfRecord.SelectObject, handle);
            _selected.Brush = handle;
        }
    }

    /// <summary>Selects a font by its height in device units and its angle. False where there are too many.</summary>
    private bool TrySelectFont(FontSpec font, int height, int tenths)
    {
        string family = font.Family.Split(',')[0].Trim();
        uint style = (uint)((tenths << 2) | (font.Bold ? 1 : 0) | (font.Italic ? 2 : 0));
        var key = (EmfObject.Font, style, height, family);
        if (!_handles.ContainsKey(key) && ++_fonts > MaxFonts)
        {
            return false;
        }

        int handle = Handle(key, at => _records.AddFont(at, -height, tenths, font.Bold, font.Italic, family));
        if (handle != _selected.Font)
        {
            _records.Add(EmfRecord.SelectObject, handle);
            _selected.Font = handle;
        }

        return true;
    }

    /// <summary>Whether a map of characters, whose Y axis points up, only rotates and scales them.</summary>
    private static bool IsUniform(in Affine2 m, double height) =>
        Math.Abs(m.Xx + m.Yy) <= UniformTolerance * height && Math.Abs(m.Yx - m.Xy) <= UniformTolerance * height;

    private static int TenthsOfDegree(in Affine2 m)
    {
        int tenths = (int)Math.Round(Math.Atan2(-m.Yx, m.Xx) * 1800 / Math.PI);
        return (tenths + 3600) % 3600;
    }

    private int Handle((EmfObject Kind, uint Color, int Size, string Face) key, Action<int> create)
    {
        if (!_handles.TryGetValue(key, out int handle))
        {
            if (_handles.Count >= MaxHandles)
            {
                throw new RenderException(
                    $"The page needs more than {MaxHandles} pens, brushes and fonts; an enhanced metafile holds no "
                        + $"more.");
            }

            handle = _handles.Count + 1;
            _handles.Add(key, handle);
            create(handle);
        }

        return handle;
    }

    /// <summary>The distance of each character to the next as laid out, with kerning, so that another font keeps to
    /// it.</summary>
    private int[] Advances(in TextRun run, double height)
    {
        var widths = new int[run.Text.Length];
        double[] ends = EndsOf(run);
        int before = 0;
        for (int i = 0, next; i < widths.Length; i = next)
        {
            next = i + LengthAt(run.Text, i);
            int until = Round(ends[i] * height);
            widths[i] = until - before;
            before = until;
        }

        return widths;
    }

    /// <summary>The verbs of each subpath.</summary>
    private static List<Range> OpenPieces(PathBuffer path)
    {
        List<Range> pieces = [];
        int start = 0;
        for (int i = 1; i <= path.Verbs.Length; i++)
        {
            if (i == path.Verbs.Length || path.Verbs[i] == PathVerb.Move)
            {
                pieces.Add(start..i);
                start = i;
            }
        }

        return pieces;
    }

    private void AddOpenLine(PathBuffer path, Range piece)
    {
        ReadOnlySpan<PathVerb> verbs = path.Verbs[piece];
        bool curved = verbs.Contains(PathVerb.Curve);
        _points.Clear();
        foreach (PathVerb verb in verbs)
        {
            // Among curves a line is one, too: its guiding points are its ends.
            int at = _coord;
            _coord += verb == PathVerb.Curve ? 6 : 2;
            if (curved && verb == PathVerb.Line)
            {
                _points.AddRange([_points[^2], _points[^1], Round(path.Coords[at]), Round(path.Coords[at + 1])]);
            }

            foreach (double value in path.Coords[at.._coord])
            {
                _points.Add(Round(value));
            }
        }

        _records.AddPoints(curved ? EmfRecord.PolyBezier : EmfRecord.Polyline, _points);
    }

    private void AddPath(PathBuffer path)
    {
        _records.Add(EmfRecord.BeginPath);
        ReadOnlySpan<double> c = path.Coords;
        int at = 0;
        foreach (PathVerb verb in path.Verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    _records.Add(EmfRecord.MoveTo, Round(c[at]), Round(c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    _records.Add(EmfRecord.LineTo, Round(c[at]), Round(c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    _records.AddCurve(c.Slice(at, 6), Round);
                    at += 6;
                    break;
                default:
                    _records.Add(EmfRecord.CloseFigure);
                    break;
            }
        }

        _records.Add(EmfRecord.EndPath);
    }
}
