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
        PngHead head = Head(pixels, options);
        if (head.ColorType is PngColorType.Grayscale or PngColorType.Truecolor)
        {
            pixels.Flatten(White);
        }

        PngStream.Begin(output, head, page.HorizontalResolution, page.VerticalResolution);
        WriteMetadata(page, options, output);
        if (head.ColorType == PngColorType.IndexedColor)
        {
            WriteIndexed(pixels, head, options, output);
        }
        else
        {
            PngStream.WriteRows(output, head, options.FilterType, options.CompressionLevel, Packer(pixels, head));
        }

        PngStream.End(output);
    }

    private static void WriteMetadata(RasterPageData page, PngOptions options, Stream output)
    {
        if ((options.XmpData ?? page.Xmp) is XmpPacketWrapper xmp)
        {
            PngStream.WriteChunk(output, "iTXt"u8, [.. PngStream.XmpMark, .. xmp.ToBytes()]);
        }

        if (page.Exif != null)
        {
            PngStream.WriteChunk(output, "eXIf"u8, page.Exif.SerializeData());
        }
    }

    private static PngHead Head(PixelGrid pixels, PngOptions options)
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

        return new PngHead(pixels.Width, pixels.Height, options.BitDepth, type);
    }

    private static PngStream.PackRow Packer(PixelGrid pixels, PngHead head) => (y, row) =>
    {
        ReadOnlySpan<int> from = pixels.Row(y);
        switch (head.ColorType)
        {
            case PngColorType.Grayscale:
                BitPacking.Gray(from, row, head.BitDepth);
                break;
            case PngColorType.GrayscaleWithAlpha:
                for (int x = 0; x < from.Length; x++)
                {
                    row[2 * x] = (byte)PixelGrid.Luma(from[x]);
                    row[(2 * x) + 1] = (byte)(from[x] >>> 24);
                }

                break;
            default:
                BitPacking.Rgb(from, row, head.ColorType == PngColorType.TruecolorWithAlpha ? 4 : 3);
                break;
        }
    };

    private static void WriteIndexed(PixelGrid pixels, PngHead head, PngOptions options, Stream output)
    {
        int[] palette = PaletteChoice.For(pixels, options.Palette, 1 << head.BitDepth, ColorQuantizationMethod.MedianCut);
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

        // The filters take rows one by one, so the numbers of all pixels are found first.
        byte[] indices = IndexedRows.Of(pixels, palette, options.Dithering);
        PngStream.WriteRows(output, head, PngFilterType.None, options.CompressionLevel, (y, row) =>
            BitPacking.Pack(indices.AsSpan(y * pixels.Width, pixels.Width), row, head.BitDepth));
    }
}
