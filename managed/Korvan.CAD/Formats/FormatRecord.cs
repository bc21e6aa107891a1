using System;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;

namespace Korvan.CAD.Formats;

/// <summary>A file format, or a family of formats with one reader: its detection, reader and writers. Loading, saving,
/// detection and the lists of formats use only these records.</summary>
internal sealed class FormatRecord
{
    /// <summary>Gets the short name in messages and lists, as in "DXF".</summary>
    internal required string Name { get; init; }

    /// <summary>Gets the formats; all of them are read if there is a reader.</summary>
    internal required FileFormat[] Formats { get; init; }

    /// <summary>Gets the detection of files of the format: returns one of <see cref="Formats"/>, or
    /// <see cref="FileFormat.Undefined"/> for other files.</summary>
    internal Func<SourceWindow, FileFormat> Detect { get; init; } = static _ => FileFormat.Undefined;

    /// <summary>Gets the reader, which returns the model; <see langword="null"/> for formats that are not
    /// read.</summary>
    internal FormatReader? Read { get; init; }

    /// <summary>Gets whether the reader takes a source in pieces (<see cref="SourceWindow.ReadMore"/>), so that the
    /// whole of it is never in memory.</summary>
    internal bool ReadsInPieces { get; init; }

    /// <summary>Gets the writers, one for each class of options.</summary>
    internal FormatWriter[] Writers { get; init; } = [];

    /// <summary>Gets those of <see cref="Formats"/> that are written; <see langword="null"/> for all of them.</summary>
    internal FileFormat[]? Written { get; init; }

    /// <summary>Gets the function that returns options for saving content of this format's own model as it was read;
    /// <see langword="null"/> for content of another model, and for what is not written.</summary>
    internal Func<object, SaveTarget, ImageOptionsBase?> OwnOptions { get; init; } = static (_, _) => null;

    /// <summary>Returns whether a format is one of <see cref="Formats"/>.</summary>
    internal bool Has(FileFormat format) => Has(Formats, format);

    /// <summary>Returns whether a format is one of several.</summary>
    internal static bool Has(FileFormat[] formats, FileFormat format)
    {
        // A loop, since generic code over the enumeration would be compiled when the first file is loaded.
        foreach (FileFormat own in formats)
        {
            if (own == format)
            {
                return true;
            }
        }

        return false;
    }

    /// <summary>Gets the function that explains why a file of the format, but of none of its versions, cannot be
    /// read.</summary>
    internal Func<SourceWindow, string?> Explain { get; init; } = static _ => null;
}

/// <summary>Reads a source.</summary>
/// <param name="source">The source; all of it was read, unless <see cref="FormatRecord.ReadsInPieces"/>.</param>
/// <param name="format">The format that was detected.</param>
/// <param name="options">The load options.</param>
/// <returns>A model: a drawing, a metafile, a building model or decoded pixels.</returns>
internal delegate object FormatReader(SourceWindow source, FileFormat format, LoadOptions options);

/// <summary>The destination of an image that is saved in its own format.</summary>
/// <param name="Format">The format that the image was read from.</param>
/// <param name="Extension">The extension of the file with its period; empty for streams.</param>
internal readonly record struct SaveTarget(FileFormat Format, string Extension);
