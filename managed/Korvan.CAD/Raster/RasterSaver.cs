using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster;

/// <summary>Writes pages of pixels in the format that options stand for.</summary>
internal static class RasterSaver
{
    private const int White = -1;

    private delegate void SinglePage(RasterPageData page, ImageOptionsBase options, Stream output);

    private static readonly Dictionary<Type, SinglePage> SinglePageWriters = new()
    {
        [typeof(PngOptions)] = static (page, options, output) => PngWriter.Write(page, (PngOptions)options, output),
        [typeof(BmpOptions)] = static (page, options, output) => BmpWriter.Write(page, (BmpOptions)options, output),
        [typeof(JpegOptions)] = static (page, options, output) => WriteJpeg(page, (JpegOptions)options, output),
        [typeof(Jpeg2000Options)] = static (page, options, output) => Jpeg2000Codec.Write(page.Pixels, (Jpeg2000Options)options, output),
        [typeof(PsdOptions)] = static (page, options, output) => PsdWriter.Write(page, (PsdOptions)options, output),
        [typeof(WebPOptions)] = static (page, options, output) => WebPCodec.Write(page.Pixels, (WebPOptions)options, output),
    };

    /// <summary>The classes of options that pixels are written with.</summary>
    internal static IReadOnlyCollection<Type> OptionTypes { get; } =
        [.. SinglePageWriters.Keys, typeof(DicomOptions), typeof(GifOptions), typeof(TiffOptions)];

    internal static bool Supports(ImageOptionsBase options) => OptionTypes.Contains(options.GetType());

    /// <summary>Tells whether the format holds several pages.</summary>
    internal static bool HoldsPages(ImageOptionsBase options) => options is TiffOptions or GifOptions or DicomOptions;

    internal static void Write(IRasterPages pages, ImageOptionsBase options, Stream output)
    {
        if (SinglePageWriters.TryGetValue(options.GetType(), out SinglePage? write))
        {
            using RasterPageData page = pages.Render(PageChoice.Single(pages, options.TargetFormat));
            write(page, options, output);
            return;
        }

        switch (options)
        {
            case TiffOptions tiff:
                Seekable(output, target => TiffWriter.Write(pages, tiff, target));
                break;
            case DicomOptions dicom:
                DicomWriter.Write(pages, dicom, output);
                break;
            case GifOptions gif:
                GifWriter.Write(pages, gif, output);
                break;
            default:
                throw new ImageSaveException($"{options.GetType().Name} is no way to write pixels.");
        }
    }

    /// <summary>Writes pixels in a format that holds one page, at the usual resolution.</summary>
    internal static void Write(PixelGrid pixels, ImageOptionsBase options, Stream output)
    {
        const double usual = 96;
        using var page = new RasterPageData(pixels.Copy(), usual, usual);
        SinglePageWriters[options.GetType()](page, options, output);
    }

    /// <summary>Hands a stream on that can be read and sought from its first byte, as some formats are written.</summary>
    internal static void Seekable(Stream output, Action<Stream> write)
    {
        if (output.CanSeek && output.CanRead && output.Position == 0 && output.Length == 0)
        {
            write(output);
            return;
        }

        using var copy = new MemoryStream();
        write(copy);
        copy.WriteTo(output);
    }

    private static void WriteJpeg(RasterPageData page, JpegOptions options, Stream output)
    {
        page.Pixels.Flatten(White);
        JpegWriter.Write(page, options, output);
    }
}
