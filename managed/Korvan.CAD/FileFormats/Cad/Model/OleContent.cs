using System;
using System.Buffers.Binary;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Finds the preview image in the data of an embedded document: a bitmap file, a bitmap without file header, or an
/// enhanced metafile. The headers are those of the published formats of Windows bitmaps and metafiles. The data begins
/// with a mark and the four corners of the frame, clockwise from the upper left one.
/// </summary>
internal static class OleContent
{
    private const int BitmapFileHeader = 14;
    private const int BitmapInfoHeader = 40;
    private const int EmfHeader = 88;
    private const int EmfSignatureAt = 40;
    private const uint EmfSignature = 0x464D4520;
    private const ushort CornersMark = 0x5580;
    private const int PointLength = 3 * sizeof(double);
    private const int CornersEnd = sizeof(ushort) + (4 * PointLength);

    /// <summary>Returns the corners that the data states; null for none.</summary>
    internal static (Cad3DPoint UpperLeft, Cad3DPoint LowerRight)? ReadCorners(ReadOnlySpan<byte> data) =>
        HasCorners(data) ? (PointAt(data, 0), PointAt(data, 2)) : null;

    /// <summary>Returns the data with other corners; the same data where it has none, or these.</summary>
    internal static byte[] WithCorners(byte[] data, Cad3DPoint upperLeft, Cad3DPoint lowerRight)
    {
        if (ReadCorners(data) is not var (first, third)
            || (first.ToVec3() == upperLeft.ToVec3() && third.ToVec3() == lowerRight.ToVec3()))
        {
            return data;
        }

        byte[] changed = [.. data];
        Set(changed, 0, upperLeft.X, upperLeft.Y, upperLeft.Z);
        Set(changed, 1, lowerRight.X, upperLeft.Y, upperLeft.Z);
        Set(changed, 2, lowerRight.X, lowerRight.Y, lowerRight.Z);
        Set(changed, 3, upperLeft.X, lowerRight.Y, lowerRight.Z);
        return changed;
    }

    /// <summary>Finds the first image.</summary>
    /// <returns>The image; null for none.</returns>
    internal static CadEmbeddedImage? FindPreview(ReadOnlySpan<byte> data)
    {
        for (int at = 0; at + BitmapInfoHeader <= data.Length; at++)
        {
            ReadOnlySpan<byte> rest = data[at..];
            uint start = BinaryPrimitives.ReadUInt32LittleEndian(rest);
            CadEmbeddedImage? image = start switch
            {
                1 => TryEnhancedMetafile(rest),
                BitmapInfoHeader => TryBitmap(rest),
                _ => null,
            };
            if (image is not null)
            {
                return image;
            }
        }

        return null;
    }

    private static bool HasCorners(ReadOnlySpan<byte> data) =>
        data.Length >= CornersEnd && BinaryPrimitives.ReadUInt16LittleEndian(data) == CornersMark;

    private static Cad3DPoint PointAt(ReadOnlySpan<byte> data, int corner)
    {
        ReadOnlySpan<byte> point = data.Slice(sizeof(ushort) + (corner * PointLength), PointLength);
        return new Cad3DPoint(
            BinaryPrimitives.ReadDoubleLittleEndian(point),
            BinaryPrimitives.ReadDoubleLittleEndian(point[sizeof(double)..]),
            BinaryPrimitives.ReadDoubleLittleEndian(point[(2 * sizeof(double))..]));
    }

    private static void Set(byte[] data, int corner, params ReadOnlySpan<double> coordinates)
    {
        Span<byte> point = data.AsSpan(sizeof(ushort) + (corner * PointLength), PointLength);
        for (int i = 0; i < coordinates.Length; i++)
        {
            BinaryPrimitives.WriteDoubleLittleEndian(point[(i * sizeof(double))..], coordinates[i]);
        }
    }

    private static CadEmbeddedImage? TryEnhancedMetafile(ReadOnlySpan<byte> data)
    {
        const int sizeAt = 48;
        if (data.Length < EmfHeader || BinaryPrimitives.ReadUInt32LittleEndian(data[EmfSignatureAt..]) != EmfSignature)
        {
            return null;
        }

        uint length = BinaryPrimitives.ReadUInt32LittleEndian(data[sizeAt..]);
        if (length < EmfHeader || length > (uint)data.Length)
        {
            return null;
        }

        const int frameAt = 24;
        int Frame(ReadOnlySpan<byte> bytes, int index) =>
            BinaryPrimitives.ReadInt32LittleEndian(bytes[(frameAt + (4 * index))..]);
        CadSize size = new(Frame(data, 2) - (double)Frame(data, 0), Frame(data, 3) - (double)Frame(data, 1));
        return new CadEmbeddedImage(".emf", data[..(int)length].ToArray(), size);
    }

    private static CadEmbeddedImage? TryBitmap(ReadOnlySpan<byte> data)
    {
        int width = BinaryPrimitives.ReadInt32LittleEndian(data[4..]);
        int height = BinaryPrimitives.ReadInt32LittleEndian(data[8..]);
        short planes = BinaryPrimitives.ReadInt16LittleEndian(data[12..]);
        short bits = BinaryPrimitives.ReadInt16LittleEndian(data[14..]);
        int compression = BinaryPrimitives.ReadInt32LittleEndian(data[16..]);
        if (planes != 1 || bits is not (1 or 4 or 8 or 24 or 32) || compression != 0 || width is <= 0 or > 32767
            || height == 0 || Math.Abs((long)height) > 32767)
        {
            return null;
        }

        int used = BinaryPrimitives.ReadInt32LittleEndian(data[32..]);
        int colors = bits > 8 ? 0 : used is > 0 and <= 256 ? used : 1 << bits;
        long pixels = ((((long)width * bits) + 31) / 32) * 4 * Math.Abs((long)height);
        long length = BitmapInfoHeader + (4 * colors) + pixels;
        if (length > data.Length)
        {
            return null;
        }

        byte[] file = new byte[BitmapFileHeader + length];
        file[0] = (byte)'B';
        file[1] = (byte)'M';
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(2), file.Length);
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(10), BitmapFileHeader + BitmapInfoHeader + (4 * colors));
        data[..(int)length].CopyTo(file.AsSpan(BitmapFileHeader));
        return new CadEmbeddedImage(".bmp", file, new CadSize(width, Math.Abs(height)));
    }
}
