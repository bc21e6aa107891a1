using System.IO;
using System.Linq;
using Korvan.CAD.Formats.Pages;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Raster;

/// <summary>Raster formats: each codec reads images, and writes images and rendered pages.</summary>
internal static class RasterFormats
{
    internal static FormatRecord[] Records { get; } = [.. RasterCodecs.All.Select(RecordOf)];

    private static FormatRecord RecordOf(RasterCodec codec) => new()
    {
        Name = codec.Name,
        Formats = [codec.Format],
        Detect = source => codec.Matches(source.FirstBytes) ? codec.Format : FileFormat.Undefined,
        Read = (source, _, options) => codec.Decode(
            source.All(), source.Name, options.IgnoreErrors,
            options.DataBackgroundColor.IsEmpty ? null : options.DataBackgroundColor.ToArgb()),
        Writers =
        [
            new()
            {
                OptionsType = codec.OptionsType,
                KindOf = static content => content switch
                {
                    IPixelContent => OutputKind.Image,
                    IPageContent => OutputKind.Pixels,
                    _ => null,
                },
                Write = (content, context, output) => Write(codec, content, context, output),
            },
        ],
        OwnOptions = (content, _) => content is IPixelContent ? codec.OwnOptions() : null,
    };

    private static void Write(RasterCodec codec, object content, ExportContext context, Stream output)
    {
        if (content is IPixelContent image)
        {
            codec.Writer(image.OpenPages(context.Options, codec.HoldsPages), context.Options, output);
            return;
        }

        var drawn = (IPageContent)content;
        PageWriters.Draw(drawn, context, () =>
        {
            using var pages = new DrawingPages(drawn.OpenScene(), context);
            codec.Writer(pages, context.Options, output);
        });
    }
}
