using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>Draws the records of a Windows metafile ([MS-WMF] 2.3), whose window is the whole image.</summary>
internal sealed partial class WmfPlayer
{
    private const uint PlaceableKey = 0x9AC6CDD7;
    private const int PlaceableLength = 22;
    private const int FileHeader = 18;
    private const int Anisotropic = 8;
    private const int MaxObjects = 65_536;

    private readonly GdiCanvas _canvas;
    private readonly List<object?> _objects = [];

    private WmfPlayer(GdiCanvas canvas) => _canvas = canvas;

    private GdiState State => _canvas.State;

    /// <summary>Draws a metafile. Returns how many items it made.</summary>
    internal static int Play(ReadOnlySpan<byte> data, GdiTarget target)
    {
        var header = new RecordData(data);
        bool isPlaceable = (uint)header.Int32(0) == PlaceableKey;
        Vec2 origin = isPlaceable ? new Vec2(header.Int16(6), header.Int16(8)) : default;
        Vec2 extent = isPlaceable ? new Vec2(header.Int16(10), header.Int16(12)) - origin : default;
        ReadOnlySpan<byte> records = data[Math.Min(data.Length, (isPlaceable ? PlaceableLength : 0) + FileHeader)..];
        Vec2 size = extent.X == 0 || extent.Y == 0 ? FirstExtent(records) : extent;
        if (size.X == 0 || size.Y == 0)
        {
            return 0;
        }

        (double width, double height) = (Math.Abs(size.X), Math.Abs(size.Y));
        var player = new WmfPlayer(new GdiCanvas(
            target, new Affine2(1 / width, 0, 0, -1 / height, 0, 1), new Vec2(1, 1)));
        player.State.MapMode = Anisotropic;
        (player.State.WindowOrigin, player.State.WindowExtent) = (origin, size);
        player.State.ViewportExtent = new Vec2(width, height);
        player.Run(records);
        player._canvas.Finish();
        return player._canvas.Drawn;
    }

    private static Vec2 FirstExtent(ReadOnlySpan<byte> records)
    {
        const int setExtent = 0x020C;
        for (int at = 0; TryRecord(records, at, out RecordData record); at += record.Length)
        {
            if (record.UInt16(4) == setExtent)
            {
                return new Vec2(record.Int16(8), record.Int16(6));
            }
        }

        return default;
    }

    private static bool TryRecord(ReadOnlySpan<byte> records, int at, out RecordData record)
    {
        const int headerLength = 6;
        record = default;
        if (at > records.Length - headerLength)
        {
            return false;
        }

        long length = 2L * (uint)new RecordData(records[at..]).Int32(0);
        if (length < headerLength || length > records.Length - at)
        {
            return false;
        }

        Budget.Step();
        record = new RecordData(records.Slice(at, (int)length));
        return record.UInt16(4) != 0;
    }

    private void Run(ReadOnlySpan<byte> records)
    {
        for (int at = 0; TryRecord(records, at, out RecordData record); at += record.Length)
        {
            int function = record.UInt16(4);
            _ = SetState(function, record) || SetObject(function, record) || DrawShape(function, record)
                || DrawContent(function, record);
        }
    }

    /// <summary>A point whose y comes first, as parameters do that are in the order of a call.</summary>
    private static Vec2 Reversed(in RecordData record, int at) => new(record.Int16(at + 2), record.Int16(at));

    private bool SetState(int function, in RecordData record)
    {
        const int both = 1, difference = 4;
        switch (function)
        {
            case 0x001E: _canvas.Save(); break;
            case 0x0127: _canvas.Restore(record.Int16(6)); break;
            case 0x0102: State.BackgroundMode = record.UInt16(6); break;
            case 0x0104: State.RasterOperation = record.UInt16(6); break;
            case 0x0106: State.FillMode = record.UInt16(6); break;
            case 0x012E: State.TextAlign = record.UInt16(6); break;
            case 0x0201: State.Background = record.Color(6); break;
            case 0x0209: State.TextColor = record.Color(6); break;
            case 0x020B: State.WindowOrigin = Reversed(record, 6); break;
            case 0x020C: State.WindowExtent = Reversed(record, 6); break;
            case 0x020F: State.WindowOrigin += Reversed(record, 6); break;
            case 0x0415: _canvas.Clip(Box(record, 6), false, difference); break;
            case 0x0416: _canvas.Clip(Box(record, 6), false, both); break;
            case 0x012C: _canvas.ReleaseClip(); break;
            default: return false;
        }

        return true;
    }

    // Boxes are bottom, right, top, left.
    private PathBuffer Box(in RecordData record, int at) => _canvas.Box(
        record.Int16(at + 6), record.Int16(at + 4), record.Int16(at + 2), record.Int16(at));

    private bool SetObject(int function, in RecordData record)
    {
        const int create = 0x02FA, brush = 0x02FC, font = 0x02FB;
        switch (function)
        {
            case 0x012D: Select(record.UInt16(6)); break;
            case 0x01F0: Remove(record.UInt16(6)); break;
            case create: Keep(Pen(record)); break;
            case brush: Keep(Brush(record)); break;
            case font: Keep(Font(record)); break;
            case 0x0142 or 0x01F9: Keep(new GdiBrush(new Rgba(128, 128, 128))); break;

            // Palettes and regions have a place in the table, too.
            case 0x00F7 or 0x06FF or 0x02FD or 0x06FE: Keep(new object()); break;
            default: return false;
        }

        return true;
    }

    // An object takes the first place that is free.
    private void Keep(object made)
    {
        int free = _objects.IndexOf(null);
        if (free >= 0)
        {
            _objects[free] = made;
        }
        else if (_objects.Count < MaxObjects)
        {
            _objects.Add(made);
        }
    }

    private void Remove(int index)
    {
        if (index < _objects.Count)
        {
            _objects[index] = null;
        }
    }

    private void Select(int index)
    {
        switch (index < _objects.Count ? _objects[index] : null)
        {
            case GdiPen pen: State.Pen = pen; break;
            case GdiBrush brush: State.Brush = brush; break;
            case GdiFont font: State.Font = font; break;
        }
    }
}
