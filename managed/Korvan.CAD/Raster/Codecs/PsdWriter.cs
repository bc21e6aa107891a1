using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes PSD files of version 1 that hold the merged image, 8 bits per channel.</summary>
internal static class PsdWriter
{
    private const int MaxSide = 30_000;
    private const int White = -1;

    internal static void Write(RasterPageData page, PsdOptions options, Stream output)
    {
        PixelGrid pixels = page.Pixels;
        if (pixels.Width > MaxSide || pixels.Height > MaxSide)
        {
            throw new PsdImageException(
                $"A PSD holds at most {MaxSide} pixels on a side, not {pixels.Width} × {pixels.Height}.");
        }

        if (options.CompressionMethod is not (CompressionMethod.Raw or CompressionMethod.Rle))
        {
            throw new PsdImageException(
                $"Merged images are written with the compression_method RAW or RLE, not "
                    + $"{Verify.NameOf(options.CompressionMethod)}.");
        }

        if (options.ColorMode is not (ColorModes.Rgb or ColorModes.Grayscale or ColorModes.Cmyk or ColorModes.Indexed))
        {
            throw new PsdImageException(
                $"PSD files are written with the color_mode RGB, GRAYSCALE, CMYK or INDEXED, not "
                    + $"{Verify.NameOf(options.ColorMode)}.");
        }

        bool alpha = options.ColorMode == ColorModes.Rgb && !pixels.IsOpaque();
        if (!alpha)
        {
            pixels.Flatten(White);
        }

        int[] palette = options.ColorMode == ColorModes.Indexed
            ? PaletteChoice.For(pixels, options.Palette, 256, ColorQuantizationMethod.MedianCut) : [];
        PlaneRow[] planes = Planes(pixels, options.ColorMode, alpha, palette);
        WriteHeader(output, pixels, planes.Length, options.ColorMode);
        WritePalette(output, palette);
        WriteResources(output, page, options);
        Number(output, 0); // no layers
        WritePlanes(output, planes, pixels, options.CompressionMethod);
    }

    /// <summary>Fills a row of a plane.</summary>
    private delegate void PlaneRow(int y, Span<byte> row);

    private delegate void RowAction(ReadOnlySpan<byte> row);

    private static PlaneRow[] Planes(PixelGrid pixels, ColorModes mode, bool alpha, int[] palette)
    {
        return mode switch
        {
            ColorModes.Indexed => [Indices(IndexedPixels.Of(pixels, palette, DitheringMethods.None), pixels.Width)],
            ColorModes.Grayscale => [Plane(pixels, static p => PixelGrid.Luma(p))],

            // Inks are stored inverted.
            ColorModes.Cmyk =>
            [
                Plane(pixels, static p => 255 - CmykColor.FromArgb32(p).C),
                Plane(pixels, static p => 255 - CmykColor.FromArgb32(p).M),
                Plane(pixels, static p => 255 - CmykColor.FromArgb32(p).Y),
                Plane(pixels, static p => 255 - CmykColor.FromArgb32(p).K),
            ],
            _ when !alpha => [Channel(pixels, 16), Channel(pixels, 8), Channel(pixels, 0)],
            _ =>
            [
                Plane(pixels, static p => OnMatte(p, 16)),
                Plane(pixels, static p => OnMatte(p, 8)),
                Plane(pixels, static p => OnMatte(p, 0)),
                Channel(pixels, 24),
            ],
        };
    }

    private static int OnMatte(int pixel, int shift) => PsdMatte.Blend((pixel >> shift) & 255, pixel >>> 24);

    private static PlaneRow Indices(byte[] indices, int width) =>
        (y, row) => indices.AsSpan(y * width, width).CopyTo(row);

    // Most images have no other planes, which a call for each pixel would make slow.
    private static PlaneRow Channel(PixelGrid pixels, int shift) => (y, row) =>
    {
        ReadOnlySpan<int> from = pixels.Row(y);
        for (int x = 0; x < row.Length; x++)
        {
            row[x] = (byte)(from[x] >> shift);
        }
    };

    private static PlaneRow Plane(PixelGrid pixels, Func<int, int> sample) => (y, row) =>
    {
        ReadOnlySpan<int> from = pixels.Row(y);
        for (int x = 0; x < row.Length; x++)
        {
            row[x] = (byte)sample(from[x]);
        }
    };

    private static void WriteHeader(Stream output, PixelGrid pixels, int channels, ColorModes mode)
    {
        var header = new byte[26];
        "8BPS"u8.CopyTo(header);
        BinaryPrimitives.WriteInt16BigEndian(header.AsSpan(4), 1);
        BinaryPrimitives.WriteInt16BigEndian(header.AsSpan(12), (short)channels);
        BinaryPrimitives.WriteInt32BigEndian(header.AsSpan(14), pixels.Height);
        BinaryPrimitives.WriteInt32BigEndian(header.AsSpan(18), pixels.Width);
        BinaryPrimitives.WriteInt16BigEndian(header.AsSpan(22), 8);
        BinaryPrimitives.WriteInt16BigEndian(header.AsSpan(24), (short)mode);
        output.Write(header);
    }

    private static void WritePalette(Stream output, int[] palette)
    {
        if (palette.Length == 0)
        {
            Number(output, 0);
            return;
        }

        byte[] table = new PsdPalette(palette, -1).GetRawEntries();
        Number(output, table.Length);
        output.Write(table);
    }

    private static void WriteResources(Stream output, RasterPageData page, PsdOptions options)
    {
        List<ResourceBlock> blocks =
            [new UnknownResource(PsdResources.ResolutionInfo, Resolution(page)), .. options.Resources];
        if ((options.XmpData ?? page.Xmp) is XmpPacketWrapper xmp && !blocks.OfType<XmpResouce>().Any())
        {
            blocks.Add(new XmpResouce(xmp));
        }

        using var section = new MemoryStream();
        foreach (ResourceBlock block in blocks)
        {
            PsdResources.Write(section, block);
        }

        Number(output, (int)section.Length);
        section.WriteTo(output);
    }

    // Fixed-point numbers of pixels per inch, each with its display unit: inches.
    private static byte[] Resolution(RasterPageData page)
    {
        var data = new byte[16];
        BinaryPrimitives.WriteInt32BigEndian(data, (int)Math.Min(int.MaxValue, page.HorizontalResolution * 65536));
        BinaryPrimitives.WriteInt16BigEndian(data.AsSpan(4), 1);
        BinaryPrimitives.WriteInt16BigEndian(data.AsSpan(6), 1);
        BinaryPrimitives.WriteInt32BigEndian(
            data.AsSpan(8), (int)Math.Min(int.MaxValue, page.VerticalResolution * 65536));
        BinaryPrimitives.WriteInt16BigEndian(data.AsSpan(12), 1);
        BinaryPrimitives.WriteInt16BigEndian(data.AsSpan(14), 1);
        return data;
    }

    private static void WritePlanes(Stream output, PlaneRow[] planes, PixelGrid pixels, CompressionMethod method)
    {
        Short(output, (int)method);
        if (method == CompressionMethod.Raw)
        {
            ForEachRow(planes, pixels, output.Write);
            return;
        }

        // The lengths of all packed rows precede the rows. To pack them twice takes less than to keep them.
        List<byte> packed = [];
        ForEachRow(planes, pixels, row =>
        {
            Pack(row, packed);
            Short(output, packed.Count);
        });
        ForEachRow(planes, pixels, row =>
        {
            Pack(row, packed);
            output.Write(CollectionsMarshal.AsSpan(packed));
        });
    }

    private static void Pack(ReadOnlySpan<byte> row, List<byte> packed)
    {
        packed.Clear();
        PackBits.Pack(row, packed);
    }

    private static void ForEachRow(PlaneRow[] planes, PixelGrid pixels, RowAction take)
    {
        byte[] row = new byte[pixels.Width];
        foreach (PlaneRow plane in planes)
        {
            for (int y = 0; y < pixels.Height; y++)
            {
                Budget.Check();
                plane(y, row);
                take(row);
            }
        }
    }

    private static void Short(Stream output, int value)
    {
        output.WriteByte((byte)(value >> 8));
        output.WriteByte((byte)value);
    }

    private static void Number(Stream output, int value)
    {
        Short(output, value >> 16);
        Short(output, value);
    }
}
