using System;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;

namespace Korvan.CAD.Formats;

/// <summary>All that the library knows of a file format, or of a family of them with one reader: how its files are
/// told, what reads and what writes them. Loading, saving, detection and the lists of formats ask these records and
/// nothing else.</summary>
internal sealed class FormatRecord
{
    /// <summary>Gets the short name in messages and lists, as in "DXF".</summary>
    internal required string Name { get; init; }

    /// <summary>Gets the formats, which all are read if one is.</summary>
    internal required FileFormat[] Formats { get; init; }

    /// <summary>Gets what tells files of the format: one of <see cref="Formats"/>, or
    /// <see cref="FileFormat.Undefined"/> for files of others.</summary>
    internal Func<SourceWindow, FileFormat> Detect { get; init; } = static _ => FileFormat.Undefined;

    /// <summary>Gets what reads a file into its model; nothing for formats that are not read.</summary>
    internal FormatReader? Read { get; init; }

    /// <summary>Gets what writes files, one for each class of options.</summary>
    internal FormatWriter[] Writers { get; init; } = [];

    /// <summary>Gets which of <see cref="Formats"/> the writers write; all of them where nothing else is said.</summary>
    internal FileFormat[]? Written { get; init; }

    /// <summary>Gets the options that write content of this format's own model as it was read; nothing for content of
    /// another model, and for what is not written.</summary>
    internal Func<object, OwnPlace, ImageOptionsBase?> OwnOptions { get; init; } = static (_, _) => null;

    /// <summary>Tells whether a format is one of <see cref="Formats"/>.</summary>
    internal bool Has(FileFormat format)
    {
        // A loop, since generic code over the enumeration would be compiled when the first file is loaded.
        foreach (FileFormat own in Formats)
        {
            if (own == format)
            {
                return true;
            }
        }

        return false;
    }

    /// <summary>Gets why a file that belongs to the format, but is of no member of it, cannot be read.</summary>
    internal Func<SourceWindow, string?> Explain { get; init; } = static _ => null;
}

/// <summary>Reads a whole file.</summary>
/// <param name="data">The bytes.</param>
/// <param name="name">What the file is called in messages.</param>
/// <param name="format">The format that was detected.</param>
/// <param name="options">How to read.</param>
/// <returns>A model: a drawing, a metafile, a building model or decoded pixels.</returns>
internal delegate object FormatReader(byte[] data, string name, FileFormat format, LoadOptions options);

/// <summary>Where an image is written in its own format.</summary>
/// <param name="Format">The format that the image was read from.</param>
/// <param name="Extension">The extension of the file with its point; empty for streams.</param>
internal readonly record struct OwnPlace(FileFormat Format, string Extension);
