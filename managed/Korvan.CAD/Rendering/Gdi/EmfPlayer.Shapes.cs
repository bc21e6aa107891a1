using System;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <content>Shapes, texts and bitmaps.</content>
internal sealed partial class EmfPlayer
{
    private const int FirstShort = 85;

    private bool DrawShape(int type, in RecordData record)
    {
        bool isShort = type is >= FirstShort and <= 92;
        int kind = isShort ? type switch { 90 => 7, 91 => 8, 92 => 56, _ => type - FirstShort + 2 } : type;
        switch (kind)
        {
            case 2: Figure(record, isShort, closed: false, areCurves: true); break;
            case 3: Figure(record, isShort, closed: true, areCurves: false); break;
            case 4: Figure(record, isShort, closed: false, areCurves: false); break;
            case 5: _canvas.LinesTo(record.Points(28, record.Int32(24), isShort), areCurves: true); break;
            case 6: _canvas.LinesTo(record.Points(28, record.Int32(24), isShort)); break;
            case 7: Figures(record, isShort, closed: false); break;
            case 8: Figures(record, isShort, closed: true); break;
            case 56: PolyDraw(record, isShort); break;
            case 27: _canvas.MoveTo(record.Point(8)); break;
            case 54: _canvas.LinesTo([record.Point(8)]); break;
            case 41:
                _canvas.AngleArc(
                    record.Point(8), (uint)record.Int32(16), Angles.Radians(record.Single(20)),
                    Angles.Radians(record.Single(24)));
                break;
            case 42: Boxed(record, _canvas.Ellipse); break;
            case 43: Boxed(record, _canvas.Rectangle); break;
            case 44: RoundRectangle(record); break;
            case 45: Arc(record, ArcKind.Open); break;
            case 46: Arc(record, ArcKind.Chord); break;
            case 47: Arc(record, ArcKind.Pie); break;
            case 55: Arc(record, ArcKind.Continued); break;
            default: return false;
        }

        return true;
    }

    private static void Boxed(in RecordData record, Action<double, double, double, double> draw) =>
        draw(record.Int32(8), record.Int32(12), record.Int32(16), record.Int32(20));

    private void RoundRectangle(in RecordData record) => _canvas.RoundRectangle(
        record.Int32(8), record.Int32(12), record.Int32(16), record.Int32(20), record.Int32(24), record.Int32(28));

    private void Arc(in RecordData record, ArcKind kind) => _canvas.Arc(
        record.Int32(8), record.Int32(12), record.Int32(16), record.Int32(20), record.Point(24), record.Point(32),
        kind);

    private void Figure(in RecordData record, bool isShort, bool closed, bool areCurves)
    {
        Vec2[] points = record.Points(28, record.Int32(24), isShort);
        _canvas.Figures(points, [points.Length], closed, areCurves);
    }

    private void Figures(in RecordData record, bool isShort, bool closed)
    {
        const int countsAt = 32;
        int figures = Math.Clamp(record.Int32(24), 0, Math.Max(0, record.Length - countsAt) / 4);
        var counts = new int[figures];
        for (int i = 0; i < figures; i++)
        {
            counts[i] = record.Int32(countsAt + (4 * i));
        }

        _canvas.Figures(record.Points(countsAt + (4 * figures), record.Int32(28), isShort), counts, closed);
    }

    // Each point has a byte: 2 a line, 4 a part of a curve, 6 a new figure; 1 closes the figure after it.
    private void PolyDraw(in RecordData record, bool isShort)
    {
        const int curve = 4, start = 6, closes = 1;
        Vec2[] points = record.Points(28, record.Int32(24), isShort);
        int kinds = 28 + (points.Length * (isShort ? 4 : 8));
        for (int i = 0; i < points.Length; i++)
        {
            int kind = record.Byte(kinds + i);
            int used = (kind & ~closes) == curve ? Math.Min(3, points.Length - i) : 1;
            if ((kind & ~closes) == start)
            {
                _canvas.MoveTo(points[i]);
            }
            else
            {
                _canvas.LinesTo(points.AsSpan(i, used), areCurves: used == 3);
            }

            i += used - 1;
            if ((record.Byte(kinds + i) & closes) != 0)
            {
                _canvas.CloseFigure();
            }
        }
    }

    private bool DrawContent(int type, in RecordData record)
    {
        switch (type)
        {
            case 15: Pixel(record); break;
            case 71 or 74: FillRegion(type, record); break;
            case 76 or 77 or 114 or 116: Block(type, record); break;
            case 80: Dib(record, hasOperation: false); break;
            case 81: Dib(record, hasOperation: true); break;
            case 83: Text(record, isWide: false); break;
            case 84: Text(record, isWide: true); break;
            case 108: SmallText(record); break;
            case 118: Gradients(record); break;
            default: return false;
        }

        return true;
    }

    private void Pixel(in RecordData record)
    {
        GdiBrush brush = State.Brush;
        State.Brush = new GdiBrush(record.Color(16));
        Vec2 at = record.Point(8);
        _canvas.FillBox(at.X, at.Y, at.X + 1, at.Y + 1);
        State.Brush = brush;
    }

    private void FillRegion(int type, in RecordData record)
    {
        const int fill = 71;
        GdiBrush brush = State.Brush;
        if (type == fill)
        {
            Select((uint)record.Int32(28));
        }

        foreach ((double left, double top, double right, double bottom) in Boxes(record, type == fill ? 32 : 28))
        {
            _canvas.FillBox(left, top, right, bottom);
        }

        State.Brush = brush;
    }

    /// <summary>Transfers of a bitmap, or of the brush where there is none.</summary>
    private void Block(int type, in RecordData record)
    {
        const int plain = 76, blended = 114, transparent = 116;
        const uint copy = 0xCC0020;
        Vec2 corner = record.Point(24);
        Vec2 size = record.Point(32);
        uint operation = type is blended or transparent ? copy : (uint)record.Int32(40);
        if (record.Int32(96) <= 0)
        {
            _canvas.PatternBox(corner.X, corner.Y, corner.X + size.X, corner.Y + size.Y, operation);
            return;
        }

        Vec2 part = record.Point(44);
        Vec2 partSize = type == plain ? size : record.Point(100);
        double opacity = type == blended ? record.Byte(42) / 255.0 : 1;
        _canvas.Bitmap(
            record.Slice(record.Int32(84), record.Int32(88)), record.Slice(record.Int32(92), record.Int32(96)), corner,
            size, new GdiPart(part.X, part.Y, partSize.X, partSize.Y), operation, opacity);
    }

    /// <summary>A bitmap; one with an operation has a size of its own, too.</summary>
    private void Dib(in RecordData record, bool hasOperation)
    {
        const uint copy = 0xCC0020;
        ReadOnlySpan<byte> header = record.Slice(record.Int32(48), record.Int32(52));
        Vec2 part = record.Point(32);
        Vec2 partSize = record.Point(40);

        // The origin of the part is the lower left corner of a bitmap that runs up.
        int height = new RecordData(header).Int32(8);
        double top = height > 0 ? height - part.Y - partSize.Y : part.Y;
        _canvas.Bitmap(
            header, record.Slice(record.Int32(56), record.Int32(60)), record.Point(24),
            hasOperation ? record.Point(72) : partSize, new GdiPart(part.X, top, partSize.X, partSize.Y),
            hasOperation ? (uint)record.Int32(68) : copy);
    }

    private void Text(in RecordData record, bool isWide)
    {
        const int opaque = 2;
        int count = Math.Clamp(record.Int32(44), 0, record.Length);
        int options = record.Int32(52);
        if ((options & opaque) != 0)
        {
            _canvas.TextBox(record.Int32(56), record.Int32(60), record.Int32(64), record.Int32(68));
        }

        ReadOnlySpan<byte> bytes = record.Slice(record.Int32(48), isWide ? 2 * count : count);
        string text = isWide ? Encoding.Unicode.GetString(bytes) : GdiNumbers.Text(bytes, State.Font.Charset);
        _canvas.Text(text, record.Point(36), Width(record, record.Int32(72), count, options));
    }

    // The distances from character to character; with pairs of numbers, the first of each.
    private static double Width(in RecordData record, int at, int count, int options)
    {
        const int arePairs = 0x2000;
        int step = (options & arePairs) != 0 ? 8 : 4;
        double width = 0;
        for (int i = 0; i < count && at > 0 && at + (i * step) < record.Length; i++)
        {
            width += record.Int32(at + (i * step));
        }

        return width;
    }

    private void SmallText(in RecordData record)
    {
        const int noBox = 0x100, areBytes = 0x200;
        int count = Math.Clamp(record.Int32(16), 0, record.Length);
        int options = record.Int32(20);
        int at = (options & noBox) != 0 ? 36 : 52;
        ReadOnlySpan<byte> bytes = record.Slice(at, (options & areBytes) != 0 ? count : 2 * count);
        string text = (options & areBytes) != 0
            ? GdiNumbers.Text(bytes, State.Font.Charset) : Encoding.Unicode.GetString(bytes);
        _canvas.Text(text, record.Point(8), 0);
    }

    /// <summary>Boxes between two vertices each. Triangles are left out.</summary>
    private void Gradients(in RecordData record)
    {
        const int triangles = 2, verticesAt = 36, vertexSize = 16;
        int mode = record.Int32(32);
        int vertices = Math.Clamp(record.Int32(24), 0, record.Length / vertexSize);
        int boxes = mode == triangles ? 0 : Math.Clamp(record.Int32(28), 0, record.Length / 8);
        Rgba ColorOf(in RecordData data, int vertex) => new(
            data.Byte(vertex + 9), data.Byte(vertex + 11), data.Byte(vertex + 13));
        for (int i = 0; i < boxes; i++)
        {
            int index = verticesAt + (vertices * vertexSize) + (i * 8);
            int first = verticesAt + (record.Int32(index) * vertexSize);
            int last = verticesAt + (record.Int32(index + 4) * vertexSize);
            _canvas.Gradient(
                record.Point(first), record.Point(last), ColorOf(record, first), ColorOf(record, last), mode == 0);
        }
    }
}
