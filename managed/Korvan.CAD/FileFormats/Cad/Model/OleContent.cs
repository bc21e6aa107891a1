using System;
using System.Buffers.Binary;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Finds the preview image in the data of an embedded document: a bitmap file, a bitmap without file header, or a
/// metafile, plain or enhanced. The headers are those of the published formats of Windows bitmaps and metafiles.
/// </summary>
internal static class OleContent
{
    private const int BitmapFileHeader = 14;
    private const int BitmapInfoHeader = 40;
    private const int EmfHeader = 88;
    private const int EmfSignatureAt = 40;
    private const uint EmfSignature = 0x464D4520;

    /// <summary>A metafile in memory, with a header of nine words.</summary>
    private const uint MetafileStart = 0x00090001;

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
                MetafileStart => TryMetafile(rest),
                _ => null,
            };
            if (image is not null)
            {
                return image;
            }
        }

        return null;
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

    private static CadEmbeddedImage? TryMetafile(ReadOnlySpan<byte> data)
    {
        const int header = 18, versionAt = 4, lengthAt = 6;
        const ushort version = 0x300;
        if (BinaryPrimitives.ReadUInt16LittleEndian(data[versionAt..]) != version)
        {
            return null;
        }

        long length = 2L * BinaryPrimitives.ReadUInt32LittleEndian(data[lengthAt..]);
        return length > header && length <= data.Length
            ? new CadEmbeddedImage(".wmf", data[..(int)length].ToArray(), new CadSize(0, 0)) : null;
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
