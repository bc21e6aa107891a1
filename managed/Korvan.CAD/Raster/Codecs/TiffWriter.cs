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

    private readonly TiffOptions _options;
    private readonly TiffFile _tiff;
    private readonly int _bits;
    private readonly int _samples;

    private TiffWriter(TiffOptions options, TiffFile tiff)
    {
        _options = options;
        _tiff = tiff;
        _bits = options.BitsPerSample[0];
        _samples = options.SamplesPerPixel;
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
        using var tiff = new TiffFile(output, "output", options.ByteOrder == TiffByteOrder.BigEndian ? "wb" : "wl");
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
        if (_options.Photometric != TiffPhotometrics.Rgb || _samples < 4)
        {
            pixels.Flatten(White);
        }

        if (_bits < 8 && _options.Photometric != TiffPhotometrics.Palette)
        {
            Operations.ColorAdjustment.Grayscale(pixels); // the threshold applies to luma
        }

        int[]? palette = Palette(pixels);
        int rowBytes = checked((int)((((long)pixels.Width * _bits * _samples) + 7) / 8));
        int rows = _options.RowsPerStrip > 0
            ? Math.Min(_options.RowsPerStrip, pixels.Height) : Math.Max(1, StripBytes / rowBytes);
        if (_options.Compression == TiffCompressions.Jpeg)
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
        _tiff.Verify(Tiff.WriteDirectory(_tiff.Handle) == 1, $"Page {number} could not be written");
    }

    private int[]? Palette(PixelGrid pixels)
    {
        return _options.Photometric switch
        {
            TiffPhotometrics.Palette =>
                PaletteChoice.For(pixels, _options.Palette, 1 << _bits, ColorQuantizationMethod.MedianCut),
            TiffPhotometrics.MinIsBlack or TiffPhotometrics.MinIsWhite when _bits < 8 => Grays(1 << _bits),
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
        Set(TiffTags.BitsPerSample, _bits);
        Set(TiffTags.SamplesPerPixel, _samples);
        Set(TiffTags.Compression, (int)_options.Compression);
        bool jpegColors = _options.Compression == TiffCompressions.Jpeg && _samples == 3;
        Set(TiffTags.Photometric, (int)(jpegColors ? TiffPhotometrics.Ycbcr : _options.Photometric));
        Set(TiffTags.PlanarConfig, (int)TiffPlanarConfigs.Contiguous);
        Set(TiffTags.Orientation, (int)TiffOrientations.TopLeft);
        Set(TiffTags.RowsPerStrip, rowsPerStrip);
        SetCompression(jpegColors);
        SetResolution(page);
        if (_samples == 4 && _options.Photometric == TiffPhotometrics.Rgb)
        {
            ushort kind = (ushort)_options.AlphaStorage;
            Set(TiffTags.ExtraSamples, 1, (long)(nint)(&kind));
        }

        if (_options.Photometric == TiffPhotometrics.Palette)
        {
            SetColorMap(palette!);
        }

        SetXmp(_options.XmpData ?? page.Xmp);
        SetText(TiffTags.PageName, title);
        SetText(TiffTags.Artist, _options.Artist);
        SetText(TiffTags.Copyright, _options.Copyright);
        SetText(TiffTags.DateTime, _options.DateTime);
        SetText(TiffTags.DocumentName, _options.DocumentName);
        SetText(TiffTags.ImageDescription, _options.ImageDescription);
        SetText(TiffTags.Software, _options.SoftwareType);
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
        bool predicts =
            _options.Compression is TiffCompressions.Lzw or TiffCompressions.AdobeDeflate or TiffCompressions.Deflate;
        if (predicts && _bits == 8 && _options.Photometric != TiffPhotometrics.Palette)
        {
            Set(TiffTags.Predictor, (int)_options.Predictor);
        }

        if (TiffPresets.IsFax(_options.Compression))
        {
            Set(TiffTags.FillOrder, (int)_options.FillOrder);
        }

        if (_options.Compression == TiffCompressions.CcittFax3)
        {
            Set(TiffTags.T4Options, (int)_options.FaxT4Options);
        }

        if (_options.Compression == TiffCompressions.Jpeg)
        {
            Tiff.Set(_tiff.Handle, JpegQuality, _options.CompressedQuality);
            if (jpegColors)
            {
                Tiff.Set(_tiff.Handle, JpegColorMode, JpegColorModeRgb);
            }
        }
    }

    private void SetResolution(RasterPageData page)
    {
        double per = _options.ResolutionUnit == TiffResolutionUnits.Centimeter ? 1 / 2.54 : 1;
        Tiff.SetReal(_tiff.Handle, (int)TiffTags.XResolution, page.HorizontalResolution * per);
        Tiff.SetReal(_tiff.Handle, (int)TiffTags.YResolution, page.VerticalResolution * per);
        Set(TiffTags.ResolutionUnit, (int)_options.ResolutionUnit);
    }

    private void SetColorMap(int[] palette)
    {
        int size = 1 << _bits;
        var map = new ushort[size * 3];
        for (int i = 0; i < palette.Length; i++)
        {
            map[i] = (ushort)(((palette[i] >> 16) & 255) * 257);
            map[size + i] = (ushort)(((palette[i] >> 8) & 255) * 257);
            map[(2 * size) + i] = (ushort)((palette[i] & 255) * 257);
        }

        fixed (ushort* start = map)
        {
            Tiff.Set(
                _tiff.Handle, (int)TiffTags.ColorMap, [(nint)start, (nint)(start + size), (nint)(start + (2 * size))]);
        }
    }

    private void WriteStrips(PixelGrid pixels, int[]? palette, int rowBytes, int rowsPerStrip)
    {
        DitheringMethods dithering = _options.Threshold switch
        {
            TiffThresholds.OrderedDithering => DitheringMethods.Ordered,
            TiffThresholds.ErrorDiffusion => DitheringMethods.ErrorDiffusion,
            _ => DitheringMethods.None,
        };
        byte[]? indices = palette == null ? null : IndexedPixels.Of(pixels, palette, dithering);
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
                _tiff.Verify(Tiff.WriteStrip(_tiff.Handle, number++, data, size) >= 0, "A strip could not be written");
            }
        }
    }

    private void Pack(PixelGrid pixels, byte[]? indices, int y, Span<byte> row)
    {
        if (indices != null)
        {
            BitPacking.Pack(indices.AsSpan(y * pixels.Width, pixels.Width), row, _bits);
        }
        else if (_samples == 1)
        {
            BitPacking.Gray(pixels.Row(y), row, 8);
        }
        else if (_options.Photometric == TiffPhotometrics.Separated)
        {
            BitPacking.Cmyk(pixels.Row(y), row);
        }
        else
        {
            BitPacking.Rgb(pixels.Row(y), row, _samples, _options.AlphaStorage == TiffAlphaStorage.Associated);
        }

        if (_options.Photometric == TiffPhotometrics.MinIsWhite)
        {
            foreach (ref byte value in row)
            {
                value = (byte)~value;
            }
        }
    }

    private void Set(TiffTags tag, params ReadOnlySpan<long> values)
    {
        _tiff.Verify(Tiff.Set(_tiff.Handle, (int)tag, values), $"Tag {tag} could not be set");
    }

    private void SetText(TiffTags tag, string text)
    {
        if (text.Length > 0)
        {
            _tiff.Verify(Tiff.SetText(_tiff.Handle, (int)tag, text), $"Tag {tag} could not be set");
        }
    }
}
