using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster;

/// <summary>The codecs of all raster formats.</summary>
internal static class RasterCodecs
{
    private const int DefaultResolution = 96;
    private const int White = -1;

    /// <summary>Gets the codecs, in the order in which signatures are tried.</summary>
    internal static IReadOnlyList<RasterCodec> All { get; } =
    [
        new()
        {
            Name = "PNG",
            Format = FileFormat.Png,
            Matches = static header => header.StartsWith((ReadOnlySpan<byte>)[0x89, (byte)'P', (byte)'N', (byte)'G']),
            Reader = PngReader.Read,
            OptionsType = typeof(PngOptions),
            Writer = RasterCodec.Single<PngOptions>(PngWriter.Write),
            OwnOptions = static () => new PngOptions(),
        },
        new()
        {
            Name = "JPEG",
            Format = FileFormat.Jpeg,
            Matches = static header => header.StartsWith((ReadOnlySpan<byte>)[0xFF, 0xD8, 0xFF]),
            Reader = JpegReader.Read,
            OptionsType = typeof(JpegOptions),
            Writer = RasterCodec.Single<JpegOptions>(static (page, options, output) =>
            {
                page.Pixels.Flatten(White); // the format has no alpha
                JpegWriter.Write(page, options, output);
            }),
            OwnOptions = static () => new JpegOptions(),
        },
        new()
        {
            Name = "GIF",
            Format = FileFormat.Gif,
            Matches = static header => header.StartsWith("GIF8"u8),
            Reader = GifReader.Read,
            OptionsType = typeof(GifOptions),
            HoldsPages = true,
            Writer = static (pages, options, output) => GifWriter.Write(pages, (GifOptions)options, output),
            OwnOptions = static () => new GifOptions(),
        },
        new()
        {
            Name = "BMP",
            Format = FileFormat.Bmp,
            Matches = static header => header.StartsWith("BM"u8) && header.Length > BmpReader.FileHeaderLength,
            Reader = BmpReader.Read,
            OptionsType = typeof(BmpOptions),
            Writer = RasterCodec.Single<BmpOptions>(BmpWriter.Write),
            OwnOptions = static () => new BmpOptions { BitsPerPixel = 32 },
        },
        new()
        {
            Name = "TIFF",
            Format = FileFormat.Tiff,
            Matches = static header => header.StartsWith("II\x2A\0"u8) || header.StartsWith("MM\0\x2A"u8)
                || header.StartsWith("II\x2B\0"u8) || header.StartsWith("MM\0\x2B"u8),
            Reader = TiffReader.Read,
            OptionsType = typeof(TiffOptions),
            HoldsPages = true,
            Writer = static (pages, options, output) =>
                SeekableOutput.Write(output, target => TiffWriter.Write(pages, (TiffOptions)options, target)),
            OwnOptions = static () => new TiffOptions(TiffExpectedFormat.TiffLzwRgba),
        },
        new()
        {
            Name = "JPEG 2000",
            Format = FileFormat.Jpeg2000,
            Matches = static header => header.StartsWith((ReadOnlySpan<byte>)[0xFF, 0x4F, 0xFF, 0x51])
                || header.StartsWith("\0\0\0\fjP  \r\n"u8),
            Reader = Jpeg2000Codec.Read,
            OptionsType = typeof(Jpeg2000Options),
            Writer = RasterCodec.Single<Jpeg2000Options>(
                static (page, options, output) => Jpeg2000Codec.Write(page.Pixels, options, output)),
            OwnOptions = static () => new Jpeg2000Options(),
        },
        new()
        {
            Name = "PSD",
            Format = FileFormat.Psd,
            Matches = static header => header.StartsWith("8BPS"u8),
            Reader = PsdReader.Read,
            OptionsType = typeof(PsdOptions),
            Writer = RasterCodec.Single<PsdOptions>(PsdWriter.Write),
            OwnOptions = static () => new PsdOptions(),
        },
        new()
        {
            Name = "WebP",
            Format = FileFormat.Webp,
            Matches = static header => header.StartsWith("RIFF"u8) && header.Length > 12
                && header[8..12].SequenceEqual("WEBP"u8),
            Reader = WebPCodec.Read,
            OptionsType = typeof(WebPOptions),
            Writer = RasterCodec.Single<WebPOptions>(
                static (page, options, output) => WebPCodec.Write(page.Pixels, options, output)),
            OwnOptions = static () => new WebPOptions(),
        },
        new()
        {
            Name = "DICOM",
            Format = FileFormat.Dicom,
            Matches = static header => header.Length > 132 && header[128..132].SequenceEqual("DICM"u8),
            Reader = DicomReader.Read,
            OptionsType = typeof(DicomOptions),
            HoldsPages = true,
            Writer = static (pages, options, output) => DicomWriter.Write(pages, (DicomOptions)options, output),
            OwnOptions = static () => new DicomOptions(),
        },
    ];

    /// <summary>Returns the codec of a file by its first bytes; null for other formats.</summary>
    internal static RasterCodec? Detect(ReadOnlySpan<byte> header)
    {
        foreach (RasterCodec codec in All)
        {
            if (codec.Matches(header))
            {
                return codec;
            }
        }

        return null;
    }

    /// <summary>Returns the codec of options; null for options of other formats.</summary>
    internal static RasterCodec? Find(Type options) => All.FirstOrDefault(codec => codec.OptionsType == options);

    /// <summary>Writes pixels at the default resolution of 96 pixels per inch.</summary>
    internal static void Write(PixelGrid pixels, ImageOptionsBase options, Stream output)
    {
        Find(options.GetType())!.Writer(new OnePage(pixels), options, output);
    }

    /// <summary>Pixels as the only page of a file.</summary>
    private sealed class OnePage(PixelGrid pixels) : IRasterPages
    {
        public IReadOnlyList<string> Titles { get; } = [""];

        public RasterPageData Render(int index) => new(pixels.CopyOnWrite(), DefaultResolution, DefaultResolution);
    }
}
