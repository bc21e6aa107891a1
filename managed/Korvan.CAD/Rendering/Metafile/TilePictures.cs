using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>The packed cells of one tile, and what they mean.</summary>
internal readonly record struct PackedTile(CompressionType Compression, byte[] Cells, int Width, int Height)
{
    /// <summary>Bits of a number, or of one component of a colour; 1 for a tile of two colours.</summary>
    internal int Bits { get; init; } = 1;

    /// <summary>3 where cells are colours, 1 where they are numbers.</summary>
    internal int Components { get; init; } = 1;

    /// <summary>Each line fills a multiple of so many bits; 0 for lines that follow each other directly.</summary>
    internal int RowPadding { get; init; }
}

/// <summary>
/// Unpacks tiles. What facsimile machines and TIFF share is put into a TIFF of one strip and left to its library.
/// </summary>
internal static class TilePictures
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

    /// <summary>The pixels of a tile of two colours; null when its packing is not read or its data is damaged.</summary>
    internal static Picture? Bitonal(in PackedTile tile, Rgba background, Rgba foreground)
    {
        if (tile.Compression is CompressionType.NullBackground or CompressionType.NullForeground)
        {
            return Filled(tile, tile.Compression == CompressionType.NullBackground ? background : foreground);
        }

        if (tile.Compression == CompressionType.Bitmap)
        {
            byte[] cells = tile.Cells;
            return Painted(tile, Stride(tile), (bits, at) => (bits[at >> 3] & (0x80 >> (at & 7))) != 0, cells, background, foreground);
        }

        if (TiffKind(tile.Compression) is not (int, int) kind || Decoded(Tiff(tile, kind.Compression, kind.Options)) is not Picture picture)
        {
            return null;
        }

        // The library gives black for the foreground and white for the rest.
        byte[] pixels = picture.Pixels;
        for (int at = 0; at < pixels.Length; at += 4)
        {
            Put(pixels, at, pixels[at] < 128 ? foreground : background);
        }

        return picture;
    }

    /// <summary>The pixels of a tile of many colours: a picture file in itself, cells that are not packed, or cells of 8
    /// bits packed by LZW. Null for any other.</summary>
    internal static Picture? Coloured(in PackedTile tile, Func<int, Rgba> colorOf)
    {
        switch (tile.Compression)
        {
            case CompressionType.BaselineJpeg or CompressionType.Png:
                return Decoded(tile.Cells);
            case CompressionType.Bitmap:
                return Unpacked(tile) is int[] cells ? FromCells(cells, tile.Width, tile.Height, colorOf) : null;
            case CompressionType.Lzw when tile.Bits == 8 && Decoded(Tiff(tile, LzwCompression, 0)) is Picture picture:
                int[] found = new int[tile.Width * tile.Height];
                for (int i = 0; i < found.Length; i++)
                {
                    ReadOnlySpan<byte> pixel = picture.Pixels.AsSpan(i * 4, 4);
                    found[i] = tile.Components == 1 ? pixel[0] : (pixel[2] << 16) | (pixel[1] << 8) | pixel[0];
                }

                return FromCells(found, tile.Width, tile.Height, colorOf);
            default:
                return null;
        }
    }

    /// <summary>Cells that have colours already, line by line.</summary>
    internal static Picture FromCells(ReadOnlySpan<int> cells, int width, int height, Func<int, Rgba> colorOf)
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

        return new Picture(width, height, pixels);
    }

    private static Picture Filled(in PackedTile tile, Rgba color)
    {
        byte[] pixels = new byte[checked(tile.Width * tile.Height * 4)];
        for (int at = 0; at < pixels.Length; at += 4)
        {
            Put(pixels, at, color);
        }

        return new Picture(tile.Width, tile.Height, pixels);
    }

    private static Picture? Painted(
        in PackedTile tile, long stride, Func<byte[], int, bool> isForeground, byte[] cells, Rgba background, Rgba foreground)
    {
        if ((stride * (tile.Height - 1)) + tile.Width > cells.Length * 8L)
        {
            return null;
        }

        byte[] pixels = new byte[checked(tile.Width * tile.Height * 4)];
        for (int y = 0; y < tile.Height; y++)
        {
            for (int x = 0; x < tile.Width; x++)
            {
                bool ink = isForeground(cells, (int)((y * stride) + x));
                Put(pixels, ((y * tile.Width) + x) * 4, ink ? foreground : background);
            }
        }

        return new Picture(tile.Width, tile.Height, pixels);
    }

    private static long Stride(in PackedTile tile)
    {
        int unit = Math.Max(1, tile.RowPadding);
        return (((long)tile.Width * tile.Bits * tile.Components) + unit - 1) / unit * unit;
    }

    /// <summary>The cells one by one, components brought to 8 bits; null when they are not all there.</summary>
    private static int[]? Unpacked(in PackedTile tile)
    {
        long stride = Stride(tile);
        if (tile.Bits is < 1 or > 16 || (stride * (tile.Height - 1)) + ((long)tile.Width * tile.Bits * tile.Components) > tile.Cells.Length * 8L)
        {
            return null;
        }

        int[] cells = new int[tile.Width * tile.Height];
        int most = (1 << tile.Bits) - 1;
        for (int i = 0; i < cells.Length; i++)
        {
            long at = (i / tile.Width * stride) + ((long)(i % tile.Width) * tile.Bits * tile.Components);
            int cell = 0;
            for (int part = 0; part < tile.Components; part++)
            {
                int value = BitsAt(tile.Cells, at + (part * tile.Bits), tile.Bits);
                cell = (cell << 8) | (tile.Components == 1 ? value : value * 255 / most);
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
        // Alpha is multiplied in.
        pixels[at] = (byte)(color.B * color.A / 255);
        pixels[at + 1] = (byte)(color.G * color.A / 255);
        pixels[at + 2] = (byte)(color.R * color.A / 255);
        pixels[at + 3] = color.A;
    }

    private static Picture? Decoded(byte[] data)
    {
        try
        {
            return Picture.Decode(data, "tile");
        }
        catch (FrameworkException)
        {
            return null; // a picture is drawn without the tiles that are damaged
        }
    }

    /// <summary>A TIFF of one strip (TIFF 6.0, sections 2, 11 and 13; big-endian).</summary>
    private static byte[] Tiff(in PackedTile tile, int compression, int options)
    {
        const int whiteIsZero = 0, blackIsZero = 1, rgb = 2, longType = 4;
        int photometric = tile.Components == 3 ? rgb : tile.Bits > 1 ? blackIsZero : whiteIsZero;
        (int Tag, int Value)[] entries =
        [
            (256, tile.Width), (257, tile.Height), (258, tile.Bits), (259, compression), (262, photometric), (273, 0), (277, tile.Components),
            (278, tile.Height), (279, tile.Cells.Length), (292, options),
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
