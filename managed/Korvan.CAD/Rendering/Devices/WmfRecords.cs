using System;
using System.Buffers.Binary;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Encodings;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Numbers of the records of a Windows metafile ([MS-WMF] 2.1.1.1).</summary>
internal enum WmfRecord
{
    Eof = 0x0000,
    SaveDC = 0x001E,
    SetBkMode = 0x0102,
    SetMapMode = 0x0103,
    SetPolyFillMode = 0x0106,
    RestoreDC = 0x0127,
    SelectObject = 0x012D,
    SetTextAlign = 0x012E,
    SetTextColor = 0x0209,
    SetWindowOrg = 0x020B,
    SetWindowExt = 0x020C,
    CreatePen = 0x02FA,
    CreateFont = 0x02FB,
    CreateBrush = 0x02FC,
    Polyline = 0x0325,
    IntersectClipRect = 0x0416,
    PolyPolygon = 0x0538,
    ExtTextOut = 0x0A32,
    StretchDib = 0x0F43,
}

/// <summary>The records of a Windows metafile, gathered in memory: its head tells their length and the
/// longest.</summary>
internal sealed class WmfRecords
{
    private const int FaceLength = 32;
    private const int HeadLength = 22 + 18;

    private static readonly Encoding Letters = DwgCodePage.Get(1252);

    private readonly ContentBlocks _content = new();
    private readonly byte[] _word = new byte[2];
    private long _longest;

    /// <summary>Whether the letters of a text are in the code page of the format's texts.</summary>
    internal static bool CanEncode(string text) => Letters.GetString(Letters.GetBytes(text)) == text;

    internal void Add(WmfRecord record, params ReadOnlySpan<short> values)
    {
        Open(record, values.Length);
        Put(values);
    }

    internal void AddPoints(WmfRecord record, ReadOnlySpan<short> counts, ReadOnlySpan<Vec2> points, Func<double,
        short> round)
    {
        Open(record, counts.Length + (2 * points.Length));
        Put(counts);
        foreach (Vec2 point in points)
        {
            Put(round(point.X));
            Put(round(point.Y));
        }
    }

    internal void AddPen(short style, short width, uint color) =>
        Add(WmfRecord.CreatePen, style, width, 0, (short)color, (short)(color >> 16));

    internal void AddFont(short height, short tenths, bool bold, bool italic, string face)
    {
        byte[] name = new byte[FaceLength];
        Letters.GetBytes(face.AsSpan(0, Math.Min(face.Length, FaceLength - 1)), name);
        Open(WmfRecord.CreateFont, 9 + (FaceLength / 2));
        Put([height, 0, tenths, tenths, (short)(bold ? 700 : 400), (short)(italic ? 1 : 0), 0, 0, 0]);
        _content.Write(name);
    }

    internal void AddText(string text, short x, short y, short[] advances)
    {
        byte[] letters = Letters.GetBytes(text);
        int words = (letters.Length + 1) / 2;
        Open(WmfRecord.ExtTextOut, 4 + words + advances.Length);
        Put([y, x, (short)letters.Length, 0]);
        _content.Write(letters);
        _content.Write(new byte[(words * 2) - letters.Length]);
        Put(advances);
    }

    internal void AddPicture(int width, int height, byte[] rows, short x, short y, short wide, short high)
    {
        const int info = 40, copy = 0x00CC0020;
        Open(WmfRecord.StretchDib, 11 + ((info + rows.Length) / 2));
        Put([unchecked((short)copy), copy >> 16, 0, (short)height, (short)width, 0, 0, high, wide, y, x]);
        foreach (int value in (ReadOnlySpan<int>)[info, width, height, 1 | (24 << 16), 0, rows.Length, 0, 0, 0, 0])
        {
            Put((short)value);
            Put((short)(value >> 16));
        }

        _content.Write(rows);
    }

    /// <summary>Ends the records and writes everything behind the head that tells the size of the page.</summary>
    internal void Finish(Stream output, short width, short height, double unitsPerInch, int handles)
    {
        Add(WmfRecord.Eof);
        byte[] head = new byte[HeadLength];
        Place(head, width, height, (short)Math.Clamp(Math.Round(unitsPerInch), 1, short.MaxValue));
        long words = (_content.Length + 18) / 2;
        if (words > int.MaxValue)
        {
            throw new RenderException("The page takes more than 4 GB as a Windows metafile; draw a part of it.");
        }

        Span<byte> meta = head.AsSpan(22);
        BinaryPrimitives.WriteInt16LittleEndian(meta, 1);
        BinaryPrimitives.WriteInt16LittleEndian(meta[2..], 9);
        BinaryPrimitives.WriteInt16LittleEndian(meta[4..], 0x0300);
        BinaryPrimitives.WriteInt32LittleEndian(meta[6..], (int)words);
        BinaryPrimitives.WriteInt16LittleEndian(meta[10..], (short)handles);
        BinaryPrimitives.WriteInt32LittleEndian(meta[12..], (int)_longest);
        output.Write(head);
        _content.WriteTo(output);
        _content.Dispose();
    }

    private static void Place(byte[] head, short width, short height, short unitsPerInch)
    {
        BinaryPrimitives.WriteUInt32LittleEndian(head, 0x9AC6CDD7);
        BinaryPrimitives.WriteInt16LittleEndian(head.AsSpan(10), width);
        BinaryPrimitives.WriteInt16LittleEndian(head.AsSpan(12), height);
        BinaryPrimitives.WriteInt16LittleEndian(head.AsSpan(14), unitsPerInch);
        short sum = 0;
        for (int i = 0; i < 20; i += 2)
        {
            sum ^= BinaryPrimitives.ReadInt16LittleEndian(head.AsSpan(i));
        }

        BinaryPrimitives.WriteInt16LittleEndian(head.AsSpan(20), sum);
    }

    private void Open(WmfRecord record, int words)
    {
        int length = words + 3;
        _longest = Math.Max(_longest, length);
        Put((short)length);
        Put((short)(length >> 16));
        Put((short)record);
    }

    private void Put(short value)
    {
        BinaryPrimitives.WriteInt16LittleEndian(_word, value);
        _content.Write(_word);
    }

    private void Put(ReadOnlySpan<short> values)
    {
        foreach (short value in values)
        {
            Put(value);
        }
    }
}
