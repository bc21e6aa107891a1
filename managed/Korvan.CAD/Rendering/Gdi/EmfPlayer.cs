using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>Draws the records of an enhanced metafile ([MS-EMF] 2.3).</summary>
internal sealed partial class EmfPlayer
{
    private const int HeaderRecord = 1;
    private const int EndRecord = 14;
    private const int RecordHeader = 8;
    private const uint StockObject = 0x80000000;

    private readonly GdiCanvas _canvas;
    private readonly Dictionary<int, object> _objects = [];

    private EmfPlayer(GdiCanvas canvas) => _canvas = canvas;

    private GdiState State => _canvas.State;

    /// <summary>Draws a metafile. Returns how many items it made.</summary>
    internal static int Play(ReadOnlySpan<byte> data, GdiTarget target)
    {
        var header = new RecordData(data);
        const int frameAt = 24, deviceAt = 72, millimetresAt = 80;
        Vec2 device = header.Point(deviceAt);
        Vec2 millimetres = header.Point(millimetresAt);
        Vec2 pixel = device.X > 0 && device.Y > 0 && millimetres.X > 0 && millimetres.Y > 0
            ? new Vec2(millimetres.X / device.X, millimetres.Y / device.Y)
            : new Vec2(25.4 / 96, 25.4 / 96);

        // The frame is in hundredths of a millimetre.
        Vec2 corner = header.Point(frameAt);
        Vec2 size = header.Point(frameAt + 8) - corner;
        if (!(size.X > 0 && size.Y > 0))
        {
            return 0;
        }

        var toUnit = new Affine2(
            100 * pixel.X / size.X, 0, 0, -100 * pixel.Y / size.Y, -corner.X / size.X, 1 + (corner.Y / size.Y));
        var player = new EmfPlayer(new GdiCanvas(target, toUnit, pixel));
        player.Run(data);
        player._canvas.Finish();
        return player._canvas.Drawn;
    }

    private void Run(ReadOnlySpan<byte> data)
    {
        for (int at = 0; at + RecordHeader <= data.Length;)
        {
            Budget.Step();
            var rest = new RecordData(data[at..]);
            int type = rest.Int32(0);
            int length = rest.Int32(4);
            if (type == EndRecord || length < RecordHeader || length > data.Length - at)
            {
                break;
            }

            var record = new RecordData(data.Slice(at, length));
            _ = type == HeaderRecord || SetState(type, record) || SetObject(type, record) || DrawShape(type, record)
                || DrawContent(type, record);
            at += length;
        }
    }

    private bool SetState(int type, in RecordData record)
    {
        switch (type)
        {
            case 9: State.WindowExtent = record.Point(8); break;
            case 10: State.WindowOrigin = record.Point(8); break;
            case 11: State.ViewportExtent = record.Point(8); break;
            case 12: State.ViewportOrigin = record.Point(8); break;
            case 17: State.MapMode = record.Int32(8); break;
            case 18: State.BackgroundMode = record.Int32(8); break;
            case 19: State.FillMode = record.Int32(8); break;
            case 20: State.RasterOperation = record.Int32(8); break;
            case 22: State.TextAlign = record.Int32(8); break;
            case 24: State.TextColor = record.Color(8); break;
            case 25: State.Background = record.Color(8); break;
            case 31: State.ViewportExtent = Scaled(State.ViewportExtent, record); break;
            case 32: State.WindowExtent = Scaled(State.WindowExtent, record); break;
            case 33: _canvas.Save(); break;
            case 34: _canvas.Restore(record.Int32(8)); break;
            case 35: State.World = Matrix(record); break;
            case 36: ModifyWorld(record); break;
            case 57: State.ArcsAreClockwise = record.Int32(8) == 2; break;
            case 58: State.MiterLimit = Math.Clamp(record.Single(8), 1, 1_000); break;
            default: return SetClip(type, record);
        }

        return true;
    }

    private bool SetClip(int type, in RecordData record)
    {
        const int both = 1, difference = 4;
        switch (type)
        {
            case 29: _canvas.Clip(Box(record), false, difference); break;
            case 30: _canvas.Clip(Box(record), false, both); break;
            case 67: _canvas.ClipToPath(record.Int32(8)); break;
            case 75: ClipToRegion(record); break;
            case 59: _canvas.BeginPath(); break;
            case 60: _canvas.EndPath(); break;
            case 61: _canvas.CloseFigure(); break;
            case 62: _canvas.DrawPath(fill: true, stroke: false); break;
            case 63: _canvas.DrawPath(fill: true, stroke: true); break;
            case 64: _canvas.DrawPath(fill: false, stroke: true); break;
            case 68: _canvas.AbortPath(); break;
            default: return false;
        }

        return true;
    }

    private PathBuffer Box(in RecordData record) =>
        _canvas.Box(record.Int32(8), record.Int32(12), record.Int32(16), record.Int32(20));

    private void ClipToRegion(in RecordData record)
    {
        int length = record.Int32(8);
        int mode = record.Int32(12);
        if (length <= 0)
        {
            _canvas.ReleaseClip();
            return;
        }

        _canvas.Clip(_canvas.Region(Boxes(record, 16)), false, mode);
    }

    // A region has a header with the number of its boxes at 8, then the boxes.
    private static (double Left, double Top, double Right, double Bottom)[] Boxes(in RecordData record, int at)
    {
        const int header = 32, size = 16;
        int count = Math.Clamp(record.Int32(at + 8), 0, Math.Max(0, record.Length - at - header) / size);
        var boxes = new (double, double, double, double)[count];
        for (int i = 0; i < count; i++)
        {
            int box = at + header + (i * size);
            boxes[i] = (record.Int32(box), record.Int32(box + 4), record.Int32(box + 8), record.Int32(box + 12));
        }

        return boxes;
    }

    private static Vec2 Scaled(Vec2 extent, in RecordData record)
    {
        double Factor(double over, double under) => under == 0 ? 1 : over / under;
        return new Vec2(
            extent.X * Factor(record.Int32(8), record.Int32(12)),
            extent.Y * Factor(record.Int32(16), record.Int32(20)));
    }

    private static Affine2 Matrix(in RecordData record) => new(
        record.Single(8), record.Single(12), record.Single(16), record.Single(20), record.Single(24),
        record.Single(28));

    private void ModifyWorld(in RecordData record)
    {
        const int identity = 1, before = 2, after = 3;
        Affine2 matrix = Matrix(record);
        State.World = record.Int32(32) switch
        {
            identity => Affine2.Identity,
            before => State.World * matrix,
            after => matrix * State.World,
            _ => matrix,
        };
    }

    private void Select(uint handle)
    {
        if ((handle & StockObject) != 0)
        {
            SelectStock((int)(handle & ~StockObject));
            return;
        }

        switch (_objects.GetValueOrDefault((int)handle))
        {
            case GdiPen pen: State.Pen = pen; break;
            case GdiBrush brush: State.Brush = brush; break;
            case GdiFont font: State.Font = font; break;
        }
    }

    private void SelectStock(int number)
    {
        const int noBrush = 5, whitePen = 6, blackPen = 7, noPen = 8, firstFont = 10, lastFont = 17;
        ReadOnlySpan<byte> grays = [255, 192, 128, 64, 0];
        switch (number)
        {
            case < noBrush: State.Brush = new GdiBrush(new Rgba(grays[number], grays[number], grays[number])); break;
            case noBrush: State.Brush = new GdiBrush(null); break;
            case whitePen: State.Pen = new GdiPen(Rgba.White); break;
            case blackPen: State.Pen = new GdiPen(Rgba.Black); break;
            case noPen: State.Pen = new GdiPen(Rgba.Black, 0, GdiLine.None); break;
            case >= firstFont and <= lastFont: State.Font = new GdiState().Font; break;
        }
    }
}
