using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes TIFF files with a directory for each page.</summary>
internal sealed unsafe class TiffWriter
{
    private const int White = -1;
    private const int StripBytes = 64 * 1024;

    // Pseudo tags of the JPEG codec (tiffio.h).
    private const int JpegQuality = 65537;
    private const int JpegColorMode = 65538;
    private const int JpegColorModeRgb = 1;

    private readonly TiffOptions options;
    private readonly TiffHandle tiff;
    private readonly int bits;
    private readonly int samples;

    private TiffWriter(TiffOptions options, TiffHandle tiff)
    {
        this.options = options;
        this.tiff = tiff;
        bits = options.BitsPerSample[0];
        samples = options.SamplesPerPixel;
    }

    /// <summary>Writes to a stream that can be read and sought.</summary>
    internal static void Write(IRasterPages pages, TiffOptions options, Stream output)
    {
        TiffOptionsError error = options.Validate();
        if (error != TiffOptionsError.NoError)
        {
            throw new TiffImageException(
                $"These options cannot be written: {Verify.NameOf(error)} (compression "
                    + $"{Verify.NameOf(options.Compression)},"
                + $" photometric {Verify.NameOf(options.Photometric)}, bits_per_sample "
                + $"{string.Join(' ', options.BitsPerSample)}).");
        }

        List<int> chosen = PageChoice.Of(pages, options.MultiPageOptions);
        using var tiff = new TiffHandle(output, "output", options.ByteOrder == TiffByteOrder.BigEndian ? "wb" : "wl");
        tiff.Verify(Tiff.HasCodec((ushort)options.Compression) != 0,
            $"libtiff has no encoder for {Verify.NameOf(options.Compression)}");
        var writer = new TiffWriter(options, tiff);
        for (int i = 0; i < chosen.Count; i++)
        {
            using RasterPageData page = PageChoice.Render(pages, chosen[i], options.MultiPageOptions);
            writer.WritePage(page, pages.Titles[chosen[i]], i, chosen.Count);
        }

        tiff.Finish();
    }

    private void WritePage(RasterPageData page, string title, int number, int count)
    {
        PixelGrid pixels = page.Pixels;
        if (options.Photometric != TiffPhotometrics.Rgb || samples < 4)
        {
            pixels.Flatten(White);
        }

        if (bits < 8 && options.Photometric != TiffPhotometrics.Palette)
        {
            Operations.Tones.Grayscale(pixels); // black and white are told apart by lightness
        }

        int[]? palette = Palette(pixels);
        int rowBytes = checked((int)((((long)pixels.Width * bits * samples) + 7) / 8));
        int rows = options.RowsPerStrip > 0 ? Math.Min(options.RowsPerStrip, pixels.Height) : Math.Max(1, StripBytes / rowBytes);
        if (options.Compression == TiffCompressions.Jpeg)
        {
            rows = (rows + 15) / 16 * 16; // whole blocks, as the codec demands
        }

        SetFields(page, title, rows, palette);
        if (count > 1)
        {
            Set(TiffTags.NewSubfileType, (int)TiffNewSubFileTypes.FileTypePage);
            Set(TiffTags.PageNumber, number, count);
        }

        WriteStrips(pixels, palette, rowBytes, rows);
        tiff.Verify(Tiff.WriteDirectory(tiff.Value) == 1, $"Page {number} could not be written");
    }

    private int[]? Palette(PixelGrid pixels)
    {
        return options.Photometric switch
        {
            TiffPhotometrics.Palette => PaletteChoice.For(pixels, options.Palette, 1 << bits, ColorQuantizationMethod.MedianCut),
            TiffPhotometrics.MinIsBlack or TiffPhotometrics.MinIsWhite when bits < 8 => Grays(1 << bits),
            _ => null,
        };
    }

    private static int[] Grays(int count)
    {
        var colors = new int[count];
        for (int i = 0; i < count; i++)
        {
            colors[i] = PixelGrid.Opaque | (i * 255 / (count - 1) * 0x010101);
        }

        return colors;
    }

    private void SetFields(RasterPageData page, string title, int rowsPerStrip, int[]? palette)
    {
        Set(TiffTags.ImageWidth, page.Pixels.Width);
        Set(TiffTags.ImageLength, page.Pixels.Height);
        Set(TiffTags.BitsPerSample, bits);
        Set(TiffTags.SamplesPerPixel, samples);
        Set(TiffTags.Compression, (int)options.Compression);
        bool jpegColors = options.Compression == TiffCompressions.Jpeg && samples == 3;
        Set(TiffTags.Photometric, (int)(jpegColors ? TiffPhotometrics.Ycbcr : options.Photometric));
        Set(TiffTags.PlanarConfig, (int)TiffPlanarConfigs.Contiguous);
        Set(TiffTags.Orientation, (int)TiffOrientations.TopLeft);
        Set(TiffTags.RowsPerStrip, rowsPerStrip);
        SetCompression(jpegColors);
        SetResolution(page);
        if (samples == 4 && options.Photometric == TiffPhotometrics.Rgb)
        {
            ushort kind = (ushort)options.AlphaStorage;
            Set(TiffTags.ExtraSamples, 1, (long)(nint)(&kind));
        }

        if (options.Photometric == TiffPhotometrics.Palette)
        {
            SetColorMap(palette!);
        }

        SetXmp(options.XmpData ?? page.Xmp);
        SetText(TiffTags.PageName, title);
        SetText(TiffTags.Artist, options.Artist);
        SetText(TiffTags.Copyright, options.Copyright);
        SetText(TiffTags.DateTime, options.DateTime);
        SetText(TiffTags.DocumentName, options.DocumentName);
        SetText(TiffTags.ImageDescription, options.ImageDescription);
        SetText(TiffTags.Software, options.SoftwareType);
    }

    private void SetXmp(XmpPacketWrapper? xmp)
    {
        if (xmp == null)
        {
            return;
        }

        byte[] data = xmp.ToBytes();
        fixed (byte* start = data)
        {
            Set(TiffTags.Xmp, data.Length, (nint)start);
        }
    }

    private void SetCompression(bool jpegColors)
    {
        bool predicts = options.Compression is TiffCompressions.Lzw or TiffCompressions.AdobeDeflate or TiffCompressions.Deflate;
        if (predicts && bits == 8 && options.Photometric != TiffPhotometrics.Palette)
        {
            Set(TiffTags.Predictor, (int)options.Predictor);
        }

        if (TiffPresets.IsFax(options.Compression))
        {
            Set(TiffTags.FillOrder, (int)options.FillOrder);
        }

        if (options.Compression == TiffCompressions.CcittFax3)
        {
            Set(TiffTags.T4Options, (int)options.FaxT4Options);
        }

        if (options.Compression == TiffCompressions.Jpeg)
        {
            Tiff.Set(tiff.Value, JpegQuality, options.CompressedQuality);
            if (jpegColors)
            {
                Tiff.Set(tiff.Value, JpegColorMode, JpegColorModeRgb);
            }
        }
    }

    private void SetResolution(RasterPageData page)
    {
        double per = options.ResolutionUnit == TiffResolutionUnits.Centimeter ? 1 / 2.54 : 1;
        Tiff.SetReal(tiff.Value, (int)TiffTags.XResolution, page.HorizontalResolution * per);
        Tiff.SetReal(tiff.Value, (int)TiffTags.YResolution, page.VerticalResolution * per);
        Set(TiffTags.ResolutionUnit, (int)options.ResolutionUnit);
    }

    private void SetColorMap(int[] palette)
    {
        int size = 1 << bits;
        var map = new ushort[size * 3];
        for (int i = 0; i < palette.Length; i++)
        {
            map[i] = (ushort)(((palette[i] >> 16) & 255) * 257);
            map[size + i] = (ushort)(((palette[i] >> 8) & 255) * 257);
            map[(2 * size) + i] = (ushort)((palette[i] & 255) * 257);
        }

        fixed (ushort* start = map)
        {
            Tiff.Set(tiff.Value, (int)TiffTags.ColorMap, [(nint)start, (nint)(start + size), (nint)(start + (2 * size))]);
        }
    }

    private void WriteStrips(PixelGrid pixels, int[]? palette, int rowBytes, int rowsPerStrip)
    {
        DitheringMethods how = options.Threshold switch
        {
            TiffThresholds.OrderedDithering => DitheringMethods.Ordered,
            TiffThresholds.ErrorDiffusion => DitheringMethods.ErrorDiffusion,
            _ => DitheringMethods.None,
        };
        byte[]? indices = palette == null ? null : IndexedRows.Of(pixels, palette, how);
        var strip = new byte[checked(rowBytes * Math.Min(rowsPerStrip, pixels.Height))];
        uint number = 0;
        for (int top = 0; top < pixels.Height; top += rowsPerStrip)
        {
            int rows = Math.Min(rowsPerStrip, pixels.Height - top);
            for (int i = 0; i < rows; i++)
            {
                Pack(pixels, indices, top + i, strip.AsSpan(i * rowBytes, rowBytes));
            }

            fixed (byte* data = strip)
            {
                nint size = (nint)rows * rowBytes;
                tiff.Verify(Tiff.WriteStrip(tiff.Value, number++, data, size) >= 0, "A strip could not be written");
            }
        }
    }

    private void Pack(PixelGrid pixels, byte[]? indices, int y, Span<byte> row)
    {
        if (indices != null)
        {
            BitPacking.Pack(indices.AsSpan(y * pixels.Width, pixels.Width), row, bits);
        }
        else if (samples == 1)
        {
            BitPacking.Gray(pixels.Row(y), row, 8);
        }
        else if (options.Photometric == TiffPhotometrics.Separated)
        {
            BitPacking.Inks(pixels.Row(y), row);
        }
        else
        {
            BitPacking.Rgb(pixels.Row(y), row, samples, options.AlphaStorage == TiffAlphaStorage.Associated);
        }

        if (options.Photometric == TiffPhotometrics.MinIsWhite)
        {
            foreach (ref byte value in row)
            {
                value = (byte)~value;
            }
        }
    }

    private void Set(TiffTags tag, params ReadOnlySpan<long> values)
    {
        tiff.Verify(Tiff.Set(tiff.Value, (int)tag, values), $"The field {tag} could not be set");
    }

    private void SetText(TiffTags tag, string text)
    {
        if (text.Length > 0)
        {
            tiff.Verify(Tiff.SetText(tiff.Value, (int)tag, text), $"The field {tag} could not be set");
        }
    }
}
