using System;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Raster;

/// <summary>The codec of one raster format.</summary>
internal sealed class RasterCodec
{
    /// <summary>Recognizes files of the format by their first bytes.</summary>
    internal delegate bool Signature(ReadOnlySpan<byte> head);

    /// <summary>Gets the short name in messages and lists.</summary>
    internal required string Name { get; init; }

    internal required FileFormat Format { get; init; }

    internal required Signature Matches { get; init; }

    internal required Func<RasterSource, DecodedFile> Reader { get; init; }

    /// <summary>Gets the class of options that chooses the writer.</summary>
    internal required Type OptionsType { get; init; }

    /// <summary>Gets whether a file holds several pages.</summary>
    internal bool HoldsPages { get; init; }

    internal required Action<IRasterPages, ImageOptionsBase, Stream> Writer { get; init; }

    /// <summary>Gets the factory of the options that an image of the format is saved with.</summary>
    internal required Func<ImageOptionsBase> OwnOptions { get; init; }

    /// <summary>Creates the writer of a format whose files hold one page.</summary>
    internal static Action<IRasterPages, ImageOptionsBase, Stream> Single<T>(Action<RasterPageData, T, Stream> write)
        where T : ImageOptionsBase => (pages, options, output) =>
        {
            using RasterPageData page = pages.Render(PageChoice.Single(pages, options.TargetFormat));
            write(page, (T)options, output);
        };

    /// <summary>Decodes a file.</summary>
    /// <param name="data">Its bytes.</param>
    /// <param name="name">Its name in messages.</param>
    /// <param name="lenient">Whether a damaged file is read as far as possible.</param>
    /// <param name="background">The colour of missing pixels.</param>
    /// <exception cref="ImageLoadException">The file is damaged.</exception>
    internal DecodedFile Decode(byte[] data, string name, bool lenient, int? background = null)
    {
        try
        {
            var source = new RasterSource(data, name, lenient) { Background = background };
            return LongCall.Run(
                () => Reader(source), static file => file.Frames.ForEach(static frame => frame.Dispose()));
        }
        catch (OutOfMemoryException e)
        {
            throw new LimitMemoryException($"'{name}' needs more memory than there is.", e);
        }
    }
}
