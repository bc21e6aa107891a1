using System;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <content>Objects, shapes, texts and bitmaps.</content>
internal sealed partial class WmfPlayer
{
    private static GdiPen Pen(in RecordData record) =>
        new(record.Color(12), Math.Abs((double)record.Int16(8)), (GdiLine)(record.UInt16(6) & 0xf))
        {
            Ends = GdiNumbers.EndsOf(record.UInt16(6)),
        };

    private static GdiBrush Brush(in RecordData record)
    {
        const int none = 1, hatched = 2;
        return record.UInt16(6) switch
        {
            none => new GdiBrush(null),
            hatched => new GdiBrush(record.Color(8), Math.Clamp((int)record.Int16(12), 0, 5)),
            _ => new GdiBrush(record.Color(8)),
        };
    }

    private static GdiFont Font(in RecordData record)
    {
        const int bold = 600, faceAt = 24, faceLength = 32;
        int charset = record.Byte(19);
        string face = GdiNumbers.UpToZero(GdiNumbers.Text(record.Slice(faceAt, faceLength), charset));
        return new GdiFont(
            FontTable.FromFamily(face, record.Int16(14) >= bold, record.Byte(16) != 0), record.Int16(6))
        {
            Angle = record.Int16(10) / 10.0 * Math.PI / 180,
            IsUnderlined = record.Byte(17) != 0,
            IsStruck = record.Byte(18) != 0,
            Charset = charset,
        };
    }

    private bool DrawShape(int function, in RecordData record)
    {
        switch (function)
        {
            case 0x0213: _canvas.LinesTo([Reversed(record, 6)]); break;
            case 0x0214: _canvas.MoveTo(Reversed(record, 6)); break;
            case 0x0324: Figure(record, closed: true); break;
            case 0x0325: Figure(record, closed: false); break;
            case 0x0538: Figures(record); break;
            case 0x0418: Boxed(record, 6, _canvas.Ellipse); break;
            case 0x041B: Boxed(record, 6, _canvas.Rectangle); break;
            case 0x061C:
                _canvas.RoundRectangle(
                    record.Int16(16), record.Int16(14), record.Int16(12), record.Int16(10), record.Int16(8),
                    record.Int16(6));
                break;
            case 0x0817: Arc(record, ArcKind.Open); break;
            case 0x081A: Arc(record, ArcKind.Pie); break;
            case 0x0830: Arc(record, ArcKind.Chord); break;
            default: return false;
        }

        return true;
    }

    private static void Boxed(in RecordData record, int at, Action<double, double, double, double> draw) =>
        draw(record.Int16(at + 6), record.Int16(at + 4), record.Int16(at + 2), record.Int16(at));

    // The points of the end and of the start come before the box.
    private void Arc(in RecordData record, ArcKind kind) => _canvas.Arc(
        record.Int16(20), record.Int16(18), record.Int16(16), record.Int16(14), Reversed(record, 10),
        Reversed(record, 6), kind);

    private void Figure(in RecordData record, bool closed)
    {
        Vec2[] points = record.Points(8, record.UInt16(6), areShort: true);
        _canvas.Figures(points, [points.Length], closed);
    }

    private void Figures(in RecordData record)
    {
        int figures = Math.Min(record.UInt16(6), record.Length / 2);
        var counts = new int[figures];
        int all = 0;
        for (int i = 0; i < figures; i++)
        {
            counts[i] = record.UInt16(8 + (2 * i));
            all += counts[i];
        }

        _canvas.Figures(record.Points(8 + (2 * figures), all, areShort: true), counts, closed: true);
    }

    private bool DrawContent(int function, in RecordData record)
    {
        switch (function)
        {
            case 0x041F: Pixel(record); break;
            case 0x0521: ShortText(record); break;
            case 0x0A32: Text(record); break;
            case 0x061D:
                Vec2 size = Reversed(record, 10), corner = Reversed(record, 14);
                _canvas.PatternBox(
                    corner.X, corner.Y, corner.X + size.X, corner.Y + size.Y, (uint)record.Int32(6));
                break;
            case 0x0940: Bitmap(record, dibAt: 22, partSizeAt: 14, sizeAt: 14, cornerAt: 18, partAt: 10); break;
            case 0x0B41: Bitmap(record, dibAt: 26, partSizeAt: 10, sizeAt: 18, cornerAt: 22, partAt: 14); break;
            case 0x0F43: Bitmap(record, dibAt: 28, partSizeAt: 12, sizeAt: 20, cornerAt: 24, partAt: 16); break;
            case 0x0D33: Bitmap(record, dibAt: 24, partSizeAt: 16, sizeAt: 16, cornerAt: 20, partAt: 12); break;
            default: return false;
        }

        return true;
    }

    private void Pixel(in RecordData record)
    {
        GdiBrush brush = State.Brush;
        State.Brush = new GdiBrush(record.Color(6));
        Vec2 at = Reversed(record, 10);
        _canvas.FillBox(at.X, at.Y, at.X + 1, at.Y + 1);
        State.Brush = brush;
    }

    // The text has an even number of bytes; its place follows.
    private void ShortText(in RecordData record)
    {
        int count = record.UInt16(6);
        string text = GdiNumbers.Text(record.Slice(8, count), State.Font.Charset);
        _canvas.Text(text, Reversed(record, 8 + count + (count & 1)), 0);
    }

    private void Text(in RecordData record)
    {
        const int opaque = 2, clipped = 4;
        int count = record.UInt16(10);
        int options = record.UInt16(12);
        bool hasBox = (options & (opaque | clipped)) != 0;
        if ((options & opaque) != 0)
        {
            _canvas.TextBox(record.Int16(14), record.Int16(16), record.Int16(18), record.Int16(20));
        }

        int at = hasBox ? 22 : 14;
        string text = GdiNumbers.Text(record.Slice(at, count), State.Font.Charset);
        int distances = at + count + (count & 1);
        double width = 0;
        for (int i = 0; i < count && distances + (2 * i) < record.Length; i++)
        {
            width += record.Int16(distances + (2 * i));
        }

        _canvas.Text(text, Reversed(record, 6), width);
    }

    /// <summary>A bitmap; records without one have a word more before the box that the brush fills.</summary>
    private void Bitmap(in RecordData record, int dibAt, int partSizeAt, int sizeAt, int cornerAt, int partAt)
    {
        const int setToDevice = 0x0D33, stretched = 0x0F43;
        const uint copy = 0xCC0020;
        int function = record.UInt16(4);
        uint operation = function == setToDevice ? copy : (uint)record.Int32(6);
        if (function != setToDevice && record.Length == dibAt + 2)
        {
            Vec2 box = Reversed(record, sizeAt + 2), at = Reversed(record, cornerAt + 2);
            _canvas.PatternBox(at.X, at.Y, at.X + box.X, at.Y + box.Y, operation);
            return;
        }

        var dib = new RecordData(record.Slice(dibAt, record.Length));
        int header = HeaderLength(dib);
        Vec2 size = Reversed(record, sizeAt);
        Vec2 part = Reversed(record, partAt);
        Vec2 partSize = Reversed(record, partSizeAt);
        int height = dib.Int32(8);
        bool runsUp = height > 0 && function is setToDevice or stretched;
        double top = runsUp ? height - part.Y - partSize.Y : part.Y;
        _canvas.Bitmap(
            dib.Slice(0, header), dib.Slice(header, dib.Length), Reversed(record, cornerAt), size,
            new GdiPart(part.X, top, partSize.X, partSize.Y), operation);
    }

    // The header of a bitmap with its colours and masks.
    private static int HeaderLength(in RecordData dib)
    {
        const int oldHeader = 12, masked = 3;
        int length = dib.Int32(0);
        int bits = dib.UInt16(length == oldHeader ? 10 : 14);
        if (length == oldHeader)
        {
            return length + (bits <= 8 ? 3 << bits : 0);
        }

        int used = dib.Int32(32);
        int colors = used is > 0 and <= 256 ? used : bits <= 8 ? 1 << bits : 0;
        int masks = length == 40 && dib.Int32(16) == masked ? 12 : 0;
        return Math.Clamp(length, 0, dib.Length) + (4 * colors) + masks;
    }
}
