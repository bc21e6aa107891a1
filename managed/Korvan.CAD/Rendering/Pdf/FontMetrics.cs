using System;
using System.Buffers.Binary;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The metrics of a face in thousandths of an em, from its tables (OpenType: head, hhea, OS/2, post). A table
/// that is missing or short counts as zeros.</summary>
internal readonly struct FontMetrics
{
    private const int AngleEnd = 8;

    internal FontMetrics(nint face)
    {
        byte[] header = HarfBuzz.Table(face, "head");
        byte[] lines = HarfBuzz.Table(face, "hhea");
        byte[] windows = HarfBuzz.Table(face, "OS/2");
        byte[] names = HarfBuzz.Table(face, "post", AngleEnd);
        double units = HarfBuzz.FaceGetUnitsPerEm(face);
        int Scaled(byte[] table, int at) => (int)Math.Round(Short(table, at) * 1000 / units);
        (MinX, MinY) = (Scaled(header, 36), Scaled(header, 38));
        (MaxX, MaxY) = (Scaled(header, 40), Scaled(header, 42));
        (Ascent, Descent) = (Scaled(lines, 4), Scaled(lines, 6));
        CapHeight = Scaled(windows, 88) is > 0 and int height ? height : Ascent;
        ItalicAngle = names.Length >= AngleEnd ? BinaryPrimitives.ReadInt32BigEndian(names.AsSpan(4)) / 65536.0 : 0;
    }

    internal int MinX { get; }

    internal int MinY { get; }

    internal int MaxX { get; }

    internal int MaxY { get; }

    internal int Ascent { get; }

    internal int Descent { get; }

    internal int CapHeight { get; }

    internal double ItalicAngle { get; }

    private static int Short(byte[] table, int at) =>
        table.Length >= at + 2 ? BinaryPrimitives.ReadInt16BigEndian(table.AsSpan(at)) : 0;
}
