using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Numbers of the records of an enhanced metafile ([MS-EMF] 2.1.1).</summary>
internal enum EmfRecord
{
    Header = 1,
    PolyBezier = 2,
    Polyline = 4,
    PolyBezierTo = 5,
    Eof = 14,
    SetMapMode = 17,
    SetBkMode = 18,
    SetPolyFillMode = 19,
    SetTextAlign = 22,
    SetTextColor = 24,
    MoveTo = 27,
    SaveDC = 33,
    RestoreDC = 34,
    SetWorldTransform = 35,
    SelectObject = 37,
    CreateBrushIndirect = 39,
    LineTo = 54,
    BeginPath = 59,
    EndPath = 60,
    CloseFigure = 61,
    FillPath = 62,
    StrokePath = 64,
    SelectClipPath = 67,
    StretchDiBits = 81,
    CreateFont = 82,
    ExtTextOut = 84,
    CreatePen = 95,
    SetGraphicsMode = 98,
}

/// <summary>The records of an enhanced metafile, gathered in memory: the header has their number and length.</summary>
internal sealed class EmfRecords
{
    private const int HeaderLength = 108;
    private const int FontRecordLength = 332;
    private const int FaceLength = 32;

    private readonly ContentBlocks _content = new();
    private readonly byte[] _word = new byte[4];
    private int _count = 1;

    /// <summary>The bounds of a record that states none: left, top, right, bottom.</summary>
    internal int[] Everything { get; } = [0, 0, -1, -1];

    /// <summary>Leaves room for the header.</summary>
    internal void Begin() => _content.Write(new byte[HeaderLength]);

    internal void Add(EmfRecord record, params ReadOnlySpan<int> values)
    {
        Open(record, 8 + (4 * values.Length));
        foreach (int value in values)
        {
            Put(value);
        }
    }

    internal void AddCurve(ReadOnlySpan<double> points, Func<double, int> round)
    {
        Open(EmfRecord.PolyBezierTo, 8 + 16 + 4 + 24);
        Put(Everything);
        Put(3);
        foreach (double value in points)
        {
            Put(round(value));
        }
    }

    /// <summary>A record of points: abscissas and ordinates in turn.</summary>
    internal void AddPoints(EmfRecord record, List<int> points)
    {
        Open(record, 8 + 16 + 4 + (4 * points.Count));
        Put(Everything);
        Put(points.Count / 2);
        Put(CollectionsMarshal.AsSpan(points));
    }

    internal void AddTransform(in Affine2 m)
    {
        Open(EmfRecord.SetWorldTransform, 8 + 24);
        foreach (double value in (ReadOnlySpan<double>)[m.Xx, m.Yx, m.Xy, m.Yy, m.X0, m.Y0])
        {
            Put(BitConverter.SingleToInt32Bits((float)value));
        }
    }

    internal void AddPen(int handle, int style, int width, uint color)
    {
        // No pattern bitmap, solid brush, no hatch, no own dashes.
        Add(EmfRecord.CreatePen, handle, 0, 0, 0, 0, style, width, 0, (int)color, 0, 0);
    }

    /// <summary>Adds a font by its height, negative for that of its em square, and its angle in tenths of a degree,
    /// counterclockwise.</summary>
    internal void AddFont(int handle, int height, int tenths, bool bold, bool italic, string face)
    {
        Open(EmfRecord.CreateFont, FontRecordLength);
        byte[] font = new byte[FontRecordLength - 12];
        BinaryPrimitives.WriteInt32LittleEndian(font, height);
        BinaryPrimitives.WriteInt32LittleEndian(font.AsSpan(8), tenths);
        BinaryPrimitives.WriteInt32LittleEndian(font.AsSpan(12), tenths);
        BinaryPrimitives.WriteInt32LittleEndian(font.AsSpan(16), bold ? 700 : 400);
        font[20] = italic ? (byte)1 : (byte)0;
        const byte defaultCharset = 1;
        font[23] = defaultCharset;
        Encoding.Unicode.GetBytes(face.AsSpan(0, Math.Min(face.Length, FaceLength - 1)), font.AsSpan(28));
        Put(handle);
        _content.Write(font);
    }

    /// <summary>Adds a text with its baseline at a point.</summary>
    internal void AddText(string text, int x, int y, int[] advances)
    {
        const int header = 76;
        int length = ((text.Length * 2) + 3) / 4 * 4;
        Open(EmfRecord.ExtTextOut, header + length + (4 * advances.Length));
        Put(Everything);
        const int advanced = 2;
        Put([advanced, 0, 0, x, y, text.Length, header, 0]);
        Put(Everything);
        Put(header + length);
        byte[] bytes = new byte[length];
        Encoding.Unicode.GetBytes(text, bytes);
        _content.Write(bytes);
        Put(advances);
    }

    /// <summary>Adds an image of three bytes a pixel, on a square of a side at the origin.</summary>
    internal void AddImage(int width, int height, byte[] rows, int side)
    {
        const int header = 80, info = 40, copy = 0x00CC0020;
        Open(EmfRecord.StretchDiBits, header + info + rows.Length);
        Put(Everything);
        Put([0, 0, 0, 0, width, height, header, info, header + info, rows.Length, 0, copy, side, side]);
        Put([info, width, height, 1 | (24 << 16), 0, rows.Length, 0, 0, 0, 0]);
        _content.Write(rows);
    }

    /// <summary>Ends the records and writes everything; sizes are in 0.01 mm.</summary>
    internal void Finish(Stream output, int width, int height, int handles, string name)
    {
        Add(EmfRecord.Eof, 0, 16, 20);
        if (_content.Length > int.MaxValue)
        {
            throw new RenderException("The page takes more than 2 GB as an enhanced metafile; draw a part of it.");
        }

        // The title, between two characters of zero, makes the header longer.
        byte[] title = Encoding.Unicode.GetBytes($"korvan.cad\0{name}\0\0");
        int padded = (title.Length + 3) / 4 * 4;
        byte[] header = new byte[HeaderLength + padded];
        title.CopyTo(header.AsSpan(HeaderLength));
        long total = _content.Length + padded;
        WriteHeader(header, [
            (int)EmfRecord.Header, header.Length, 0, 0, width, height, 0, 0, width, height, 0x464D4520, 0x10000,
                (int)total, _count, handles,
            title.Length / 2, HeaderLength, 0, width, height, Math.Max(1, width / 100), Math.Max(1, height / 100), 0, 0,
                0, width * 10, height * 10]);
        output.Write(header);
        _content.WriteTo(output, HeaderLength);
        _content.Dispose();
    }

    private static void WriteHeader(byte[] header, ReadOnlySpan<int> values)
    {
        for (int i = 0; i < values.Length; i++)
        {
            BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(i * 4), values[i]);
        }
    }

    private void Open(EmfRecord record, int length)
    {
        _count++;
        Put((int)record);
        Put(length);
    }

    private void Put(int value)
    {
        BinaryPrimitives.WriteInt32LittleEndian(_word, value);
        _content.Write(_word);
    }

    private void Put(ReadOnlySpan<int> values)
    {
        foreach (int value in values)
        {
            Put(value);
        }
    }
}
