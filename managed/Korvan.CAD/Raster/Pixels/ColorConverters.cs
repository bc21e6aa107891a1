using System;
using System.Buffers.Binary;
using System.Runtime.InteropServices;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>Converts rows of bytes to colours, and back: one pair of functions for each format.</summary>
internal class ColorConverters : IColorConverter
{
    private readonly Unpacking _unpack;
    private readonly Packing _pack;

    private protected ColorConverters(PixelDataFormat format, Unpacking unpack, Packing pack)
    {
        DataFormat = format;
        _unpack = unpack;
        _pack = pack;
    }

    private protected delegate void Unpacking(ReadOnlySpan<byte> row, Span<int> pixels);

    private protected delegate void Packing(ReadOnlySpan<int> pixels, Span<byte> row);

    public PixelDataFormat DataFormat { get; }

    public int[] ToArgb32(byte[] rawData, int pixelCount)
    {
        Verify.NotNull(rawData);
        Verify.NotNegative(pixelCount);
        if (rawData.Length < DataFormat.RowBytes(pixelCount))
        {
            throw new ArgumentException(
                $"{pixelCount} pixels of {DataFormat} need {DataFormat.RowBytes(pixelCount)} bytes;"
                + $" {rawData.Length} were given.");
        }

        var pixels = new int[pixelCount];
        Unpack(rawData, pixels);
        return pixels;
    }

    public byte[] FromArgb32(int[] argb32Pixels)
    {
        Verify.NotNull(argb32Pixels);
        var row = new byte[DataFormat.RowBytes(argb32Pixels.Length)];
        Pack(argb32Pixels, row);
        return row;
    }

    internal void Unpack(ReadOnlySpan<byte> row, Span<int> pixels) => _unpack(row, pixels);

    internal void Pack(ReadOnlySpan<int> pixels, Span<byte> row) => _pack(pixels, row);

    internal static ColorConverters Create(PixelDataFormat format, IColorPalette? palette)
    {
        return format.PixelFormat switch
        {
            PixelFormat.Indexed => Indexed(format, palette),
            PixelFormat.Grayscale when format.BitsPerPixel == 16 => new(format, FromGray16, ToGray16),
            PixelFormat.Grayscale => Gray(format),
            PixelFormat.Cmyk => new(format, FromCmyk, BitPacking.Cmyk),
            PixelFormat.Rgb when format.BitsPerPixel < 24 => Packed16(format),
            PixelFormat.Rgb => new(
                format,
                static (row, pixels) => FromRgb(row, pixels, 3),
                static (pixels, row) => BitPacking.Rgb(pixels, row, 3)),
            PixelFormat.Bgr => new(format, FromBgr, ToBgr),
            PixelFormat.Bgr | PixelFormat.Alpha => new(
                format,
                static (row, pixels) => row[..(pixels.Length * 4)].CopyTo(MemoryMarshal.AsBytes(pixels)),
                static (pixels, row) => MemoryMarshal.AsBytes(pixels).CopyTo(row)),
            _ => new(
                format,
                static (row, pixels) => FromRgb(row, pixels, 4),
                static (pixels, row) => BitPacking.Rgb(pixels, row, 4)),
        };
    }

    private static IndexedConverter Indexed(PixelDataFormat format, IColorPalette? palette)
    {
        if (palette == null)
        {
            throw new FrameworkException($"Pixels of {format} are palette indices; a palette is needed.");
        }

        if (palette.EntriesCount > 1 << format.BitsPerPixel)
        {
            throw new FrameworkException(
                $"The palette has {palette.EntriesCount} colours; {format} has room for {1 << format.BitsPerPixel}.");
        }

        return new IndexedConverter(format, palette);
    }

    private static ColorConverters Gray(PixelDataFormat format)
    {
        int bits = format.BitsPerPixel;
        int max = (1 << bits) - 1;
        return new(
            format,
            (row, pixels) =>
            {
                for (int i = 0; i < pixels.Length; i++)
                {
                    pixels[i] = PixelGrid.Opaque | (BitPacking.Value(row, i, bits) * 255 / max * 0x010101);
                }
            },
            (pixels, row) => BitPacking.Gray(pixels, row, bits));
    }

    private static ColorConverters Packed16(PixelDataFormat format)
    {
        int green = format.ChannelBits[1];
        return new(
            format,
            (row, pixels) =>
            {
                for (int i = 0; i < pixels.Length; i++)
                {
                    pixels[i] = FromPacked16(BinaryPrimitives.ReadUInt16LittleEndian(row[(2 * i)..]), green);
                }
            },
            (pixels, row) =>
            {
                for (int i = 0; i < pixels.Length; i++)
                {
                    BinaryPrimitives.WriteUInt16LittleEndian(row[(2 * i)..], ToPacked16(pixels[i], green));
                }
            });
    }

    private static int FromPacked16(int value, int greenBits)
    {
        int max = (1 << greenBits) - 1;
        int red = ((value >> (5 + greenBits)) & 31) * 255 / 31;
        return PixelGrid.Opaque | (red << 16) | (((value >> 5) & max) * 255 / max << 8) | ((value & 31) * 255 / 31);
    }

    private static ushort ToPacked16(int pixel, int greenBits)
    {
        int Level(int shift, int max) => ((((pixel >> shift) & 255) * max) + 127) / 255;
        return (ushort)((Level(16, 31) << (5 + greenBits)) | (Level(8, (1 << greenBits) - 1) << 5) | Level(0, 31));
    }

    private static void FromGray16(ReadOnlySpan<byte> row, Span<int> pixels)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            pixels[i] = PixelGrid.Opaque | (row[(2 * i) + 1] * 0x010101);
        }
    }

    private static void ToGray16(ReadOnlySpan<int> pixels, Span<byte> row)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            BinaryPrimitives.WriteUInt16LittleEndian(row[(2 * i)..], (ushort)(PixelGrid.Luma(pixels[i]) * 257));
        }
    }

    private static void FromCmyk(ReadOnlySpan<byte> row, Span<int> pixels)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            pixels[i] = CmykColor.FromStored(BinaryPrimitives.ReadInt32LittleEndian(row[(4 * i)..])).ToArgb32();
        }
    }

    private static void FromRgb(ReadOnlySpan<byte> row, Span<int> pixels, int samples)
    {
        for (int i = 0, at = 0; i < pixels.Length; i++, at += samples)
        {
            int alpha = samples == 4 ? row[at + 3] << 24 : PixelGrid.Opaque;
            pixels[i] = alpha | (row[at] << 16) | (row[at + 1] << 8) | row[at + 2];
        }
    }

    private static void FromBgr(ReadOnlySpan<byte> row, Span<int> pixels)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            pixels[i] = PixelGrid.Opaque | (row[(3 * i) + 2] << 16) | (row[(3 * i) + 1] << 8) | row[3 * i];
        }
    }

    private static void ToBgr(ReadOnlySpan<int> pixels, Span<byte> row)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            (row[3 * i], row[(3 * i) + 1], row[(3 * i) + 2]) =
                ((byte)pixels[i], (byte)(pixels[i] >> 8), (byte)(pixels[i] >> 16));
        }
    }

    private static void FromIndices(ReadOnlySpan<byte> row, Span<int> pixels, int bits, int[] colors)
    {
        for (int i = 0; i < pixels.Length; i++)
        {
            int index = BitPacking.Value(row, i, bits);
            pixels[i] = index < colors.Length ? colors[index] : PixelGrid.Opaque;
        }
    }

    private static void ToIndices(ReadOnlySpan<int> pixels, Span<byte> row, int bits, IColorPalette palette)
    {
        row.Clear();
        for (int i = 0; i < pixels.Length; i++)
        {
            int bit = i * bits;
            row[bit >> 3] |= (byte)(palette.GetNearestColorIndex(pixels[i]) << (8 - bits - (bit & 7)));
        }
    }

    /// <summary>A converter of indexed pixels.</summary>
    private sealed class IndexedConverter(PixelDataFormat format, IColorPalette palette)
        : ColorConverters(
            format,
            Reading(format.BitsPerPixel, palette.Argb32Entries),
            (pixels, row) => ToIndices(pixels, row, format.BitsPerPixel, palette)), IIndexedColorConverter
    {
        public IColorPalette Palette { get; } = palette;

        private static Unpacking Reading(int bits, int[] colors) =>
            (row, pixels) => FromIndices(row, pixels, bits, colors);
    }
}
