using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>The compressed cells of one tile and their format.</summary>
internal readonly record struct PackedTile(CompressionType Compression, byte[] Cells, int Width, int Height)
{
    /// <summary>Bits of a colour index, or of a colour component; 1 for a bitonal tile.</summary>
    internal int Bits { get; init; } = 1;

    /// <summary>3 for direct colours, 1 for colour indexes.</summary>
    internal int Components { get; init; } = 1;

    /// <summary>Each row is padded to a multiple of so many bits; 0 for no padding.</summary>
    internal int RowPadding { get; init; }
}

/// <summary>
/// Decompresses tiles. The compressions that TIFF shares are wrapped in a TIFF file of one strip and left to its codec.
/// </summary>
internal static class TileImages
{
    private const int HeaderLength = 8;
    private const int EntryLength = 12;
    private const int LzwCompression = 5;

    /// <summary>Compression, photometric interpretation and options of a bitonal TIFF; 1 bits are black.</summary>
    private static (int Compression, int Options)? TiffKind(CompressionType type) => type switch
    {
        CompressionType.T6 => (4, 0),
        CompressionType.T4OneDimensional => (3, 0),
        CompressionType.T4TwoDimensional => (3, 1),
        CompressionType.Lzw => (LzwCompression, 0),
        _ => null,
    };

    /// <summary>The pixels of a bitonal tile; null if it is damaged or its compression is not supported.</summary>
    internal static ImagePixels? Bitonal(in PackedTile tile, Rgba background, Rgba foreground)
    {
        if (tile.Compression is CompressionType.NullBackground or CompressionType.NullForeground)
        {
            return Filled(tile, tile.Compression == CompressionType.NullBackground ? background : foreground);
        }

        if (tile.Compression == CompressionType.Bitmap)
        {
            return Painted(tile, background, foreground);
        }

        if (TiffKind(tile.Compression) is not (int, int) kind
            || Decoded(Tiff(tile, kind.Compression, kind.Options)) is not ImagePixels decoded)
        {
            return null;
        }

        // The codec returns black for the foreground and white for the background.
        byte[] pixels = decoded.Pixels;
        for (int at = 0; at < pixels.Length; at += 4)
        {
            Put(pixels, at, pixels[at] < 128 ? foreground : background);
        }

        return decoded;
    }

    /// <summary>The pixels of a colour tile: an image file, uncompressed cells, or 8-bit cells of LZW. Null for any
    /// other.</summary>
    internal static ImagePixels? Coloured(in PackedTile tile, Func<int, Rgba> colorOf)
    {
        switch (tile.Compression)
        {
            case CompressionType.BaselineJpeg or CompressionType.Png:
                return Decoded(tile.Cells);
            case CompressionType.Bitmap:
                return Unpacked(tile) is int[] cells ? FromCells(cells, tile.Width, tile.Height, colorOf) : null;
            case CompressionType.Lzw
                when tile.Bits == 8 && Decoded(Tiff(tile, LzwCompression, 0)) is ImagePixels decoded:
                int[] found = new int[tile.Width * tile.Height];
                for (int i = 0; i < found.Length; i++)
                {
                    ReadOnlySpan<byte> pixel = decoded.Pixels.AsSpan(i * 4, 4);
                    found[i] = tile.Components == 1 ? pixel[0] : (pixel[2] << 16) | (pixel[1] << 8) | pixel[0];
                }

                return FromCells(found, tile.Width, tile.Height, colorOf);
            default:
                return null;
        }
    }

    /// <summary>The pixels of uncompressed cells, row by row.</summary>
    internal static ImagePixels FromCells(ReadOnlySpan<int> cells, int width, int height, Func<int, Rgba> colorOf)
    {
        byte[] pixels = new byte[checked(width * height * 4)];
        (int last, Rgba color) = (0, default(Rgba));
        bool known = false;
        for (int i = 0; i < width * height && i < cells.Length; i++)
        {
            if (!known || cells[i] != last)
            {
                (last, color, known) = (cells[i], colorOf(cells[i]), true);
            }

            Put(pixels, i * 4, color);
        }

        return new ImagePixels(width, height, pixels);
    }

    private static ImagePixels Filled(in PackedTile tile, Rgba color)
    {
        byte[] pixels = new byte[checked(tile.Width * tile.Height * 4)];
        for (int at = 0; at < pixels.Length; at += 4)
        {
            Put(pixels, at, color);
        }

        return new ImagePixels(tile.Width, tile.Height, pixels);
    }

    private static ImagePixels? Painted(in PackedTile tile, Rgba background, Rgba foreground)
    {
        long stride = Stride(tile);
        if ((stride * (tile.Height - 1)) + tile.Width > tile.Cells.Length * 8L)
        {
            return null;
        }

        byte[] pixels = new byte[checked(tile.Width * tile.Height * 4)];
        for (int y = 0; y < tile.Height; y++)
        {
            for (int x = 0; x < tile.Width; x++)
            {
                long at = (y * stride) + x;
                bool isForeground = (tile.Cells[at >> 3] & (0x80 >> (int)(at & 7))) != 0;
                Put(pixels, ((y * tile.Width) + x) * 4, isForeground ? foreground : background);
            }
        }

        return new ImagePixels(tile.Width, tile.Height, pixels);
    }

    private static long Stride(in PackedTile tile)
    {
        int unit = Math.Max(1, tile.RowPadding);
        return (((long)tile.Width * tile.Bits * tile.Components) + unit - 1) / unit * unit;
    }

    /// <summary>The cells of an uncompressed tile, with components of 8 bits; null if some are missing.</summary>
    private static int[]? Unpacked(in PackedTile tile)
    {
        long stride = Stride(tile);
        long lastRow = (long)tile.Width * tile.Bits * tile.Components;
        if (tile.Bits is < 1 or > 16 || (stride * (tile.Height - 1)) + lastRow > tile.Cells.Length * 8L)
        {
            return null;
        }

        int[] cells = new int[tile.Width * tile.Height];
        int max = (1 << tile.Bits) - 1;
        for (int i = 0; i < cells.Length; i++)
        {
            long at = (i / tile.Width * stride) + ((long)(i % tile.Width) * tile.Bits * tile.Components);
            int cell = 0;
            for (int part = 0; part < tile.Components; part++)
            {
                int value = BitsAt(tile.Cells, at + (part * tile.Bits), tile.Bits);
                cell = (cell << 8) | (tile.Components == 1 ? value : value * 255 / max);
            }

            cells[i] = cell;
        }

        return cells;
    }

    private static int BitsAt(byte[] bytes, long at, int count)
    {
        int value = 0;
        for (int i = 0; i < count; i++, at++)
        {
            value = (value << 1) | ((bytes[at >> 3] >> (7 - (int)(at & 7))) & 1);
        }

        return value;
    }

    private static void Put(byte[] pixels, int at, Rgba color)
    {
        // Premultiplied by alpha.
        pixels[at] = (byte)(color.B * color.A / 255);
        pixels[at + 1] = (byte)(color.G * color.A / 255);
        pixels[at + 2] = (byte)(color.R * color.A / 255);
        pixels[at + 3] = color.A;
    }

    private static ImagePixels? Decoded(byte[] data)
    {
        try
        {
            return ImagePixels.Decode(data, "tile");
        }
        catch (FrameworkException)
        {
            return null; // damaged tiles are left out
        }
    }

    /// <summary>A TIFF of one strip (TIFF 6.0, sections 2, 11 and 13; big-endian).</summary>
    private static byte[] Tiff(in PackedTile tile, int compression, int options)
    {
        const int whiteIsZero = 0, blackIsZero = 1, rgb = 2, longType = 4;
        int photometric = tile.Components == 3 ? rgb : tile.Bits > 1 ? blackIsZero : whiteIsZero;
        (int Tag, int Value)[] entries =
        [
            (256, tile.Width), (257, tile.Height), (258, tile.Bits), (259, compression), (262, photometric), (273, 0),
            (277, tile.Components), (278, tile.Height), (279, tile.Cells.Length), (292, options),
        ];
        int strip = HeaderLength + 2 + (entries.Length * EntryLength) + 4;
        byte[] file = new byte[strip + tile.Cells.Length];
        "MM\0*"u8.CopyTo(file);
        BinaryPrimitives.WriteInt32BigEndian(file.AsSpan(4), HeaderLength);
        BinaryPrimitives.WriteInt16BigEndian(file.AsSpan(HeaderLength), (short)entries.Length);
        for (int i = 0; i < entries.Length; i++)
        {
            Span<byte> entry = file.AsSpan(HeaderLength + 2 + (i * EntryLength), EntryLength);
            BinaryPrimitives.WriteInt16BigEndian(entry, (short)entries[i].Tag);
            BinaryPrimitives.WriteInt16BigEndian(entry[2..], longType);
            BinaryPrimitives.WriteInt32BigEndian(entry[4..], 1);
            BinaryPrimitives.WriteInt32BigEndian(entry[8..], entries[i].Tag == 273 ? strip : entries[i].Value);
        }

        tile.Cells.CopyTo(file, strip);
        return file;
    }
}
