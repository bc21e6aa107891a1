using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes pixels as PNG in the colours that the options ask for.</summary>
internal static class PngWriter
{
    private const int White = -1;

    internal static void Write(RasterPageData page, PngOptions options, Stream output)
    {
        PixelGrid pixels = page.Pixels;
        PngHeader header = Header(pixels, options);
        if (header.ColorType is PngColorType.Grayscale or PngColorType.Truecolor)
        {
            pixels.Flatten(White);
        }

        PngStream.Begin(output, header, page.HorizontalResolution, page.VerticalResolution);
        WriteMetadata(page, options, output);
        if (header.ColorType == PngColorType.IndexedColor)
        {
            WriteIndexed(pixels, header, options, output);
        }
        else
        {
            PngStream.WriteRows(output, header, options.FilterType, options.CompressionLevel, Packer(pixels, header));
        }

        PngStream.End(output);
    }

    private static void WriteMetadata(RasterPageData page, PngOptions options, Stream output)
    {
        if ((options.XmpData ?? page.Xmp) is XmpPacketWrapper xmp)
        {
            PngStream.WriteChunk(output, "iTXt"u8, [.. PngStream.XmpPrefix, .. xmp.ToBytes()]);
        }

        if (page.Exif != null)
        {
            PngStream.WriteChunk(output, "eXIf"u8, page.Exif.SerializeData());
        }
    }

    private static PngHeader Header(PixelGrid pixels, PngOptions options)
    {
        PngColorType type = options.ColorType;
        if (type == PngColorType.TruecolorWithAlpha && pixels.IsOpaque())
        {
            type = PngColorType.Truecolor;
        }

        bool small = type is PngColorType.Grayscale or PngColorType.IndexedColor;
        if (options.BitDepth != 8 && !small)
        {
            throw new PngImageException(
                $"A PNG of {Verify.NameOf(type)} is written with a bit_depth of 8 bits a sample, not "
                    + $"{options.BitDepth}.");
        }

        return new PngHeader(pixels.Width, pixels.Height, options.BitDepth, type);
    }

    private static PngStream.PackRow Packer(PixelGrid pixels, PngHeader header) => (y, row) =>
    {
        ReadOnlySpan<int> from = pixels.Row(y);
        switch (header.ColorType)
        {
            case PngColorType.Grayscale:
                BitPacking.Gray(from, row, header.BitDepth);
                break;
            case PngColorType.GrayscaleWithAlpha:
                for (int x = 0; x < from.Length; x++)
                {
                    row[2 * x] = (byte)PixelGrid.Luma(from[x]);
                    row[(2 * x) + 1] = (byte)(from[x] >>> 24);
                }

                break;
            default:
                BitPacking.Rgb(from, row, header.ColorType == PngColorType.TruecolorWithAlpha ? 4 : 3);
                break;
        }
    };

    private static void WriteIndexed(PixelGrid pixels, PngHeader header, PngOptions options, Stream output)
    {
        int[] palette =
            PaletteChoice.For(pixels, options.Palette, 1 << header.BitDepth, ColorQuantizationMethod.MedianCut);
        var colors = new byte[palette.Length * 3];
        var opacity = new byte[palette.Length];
        for (int i = 0; i < palette.Length; i++)
        {
            colors[3 * i] = (byte)(palette[i] >> 16);
            colors[(3 * i) + 1] = (byte)(palette[i] >> 8);
            colors[(3 * i) + 2] = (byte)palette[i];
            opacity[i] = (byte)(palette[i] >>> 24);
        }

        PngStream.WriteChunk(output, "PLTE"u8, colors);
        if (opacity.AsSpan().ContainsAnyExcept((byte)255))
        {
            PngStream.WriteChunk(output, "tRNS"u8, opacity);
        }

        // Filters process rows one by one, so the indices of all pixels are computed first.
        byte[] indices = IndexedPixels.Of(pixels, palette, options.Dithering);
        PngStream.WriteRows(output, header, PngFilterType.None, options.CompressionLevel, (y, row) =>
            BitPacking.Pack(indices.AsSpan(y * pixels.Width, pixels.Width), row, header.BitDepth));
    }
}
