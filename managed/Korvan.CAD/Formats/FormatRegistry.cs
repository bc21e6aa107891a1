using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.Formats.Cgm;
using Korvan.CAD.Formats.Detection;
using Korvan.CAD.Formats.Dwg;
using Korvan.CAD.Formats.Dxf;
using Korvan.CAD.Formats.Ifc;
using Korvan.CAD.Formats.Iges;
using Korvan.CAD.Formats.Mesh;
using Korvan.CAD.Formats.Pages;
using Korvan.CAD.Formats.Raster;
using Korvan.CAD.Formats.Step;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;

namespace Korvan.CAD.Formats;

/// <summary>The formats of the library, each with its record.</summary>
internal static class FormatRegistry
{
    /// <summary>Gets all records, in the order in which files are tried: signatures of bytes before texts.</summary>
    internal static FormatRecord[] All { get; } =
    [
        DwgFormat.Record,
        .. RasterFormats.Records,
        PdfFormat.Record,
        GlbFormat.Record,
        .. KnownSignatures.Records,
        DxfFormat.Record,
        IfcFormat.Record,
        CgmFormat.Record,
        StepFormat.Record,
        IgesFormat.Record,
        StlFormat.Record,
        SvgFormat.Record,
        .. KnownTexts.Records,
        EmfFormat.Record,
        GltfFormat.Record,
        Html5Format.Record,
        ObjFormat.Record,
        WmfFormat.Record,
    ];

    private static readonly Lazy<Dictionary<Type, FormatWriter>> ByOptions = new(IndexWriters);

    /// <summary>Gets the formats that can be read.</summary>
    internal static IEnumerable<FileFormat> Readable =>
        All.Where(static record => record.Read is not null).SelectMany(static record => record.Formats);

    /// <summary>Gets the formats that can be written.</summary>
    internal static IEnumerable<FileFormat> Writable =>
        All.Where(static record => record.Writers.Length > 0)
            .SelectMany(static record => record.Written ?? record.Formats);

    /// <summary>Gets the names of what can be read, for messages.</summary>
    internal static string ReadableNames => string.Join(", ", All.Where(static record => record.Read is not null)
        .Select(static record => record.Name).Distinct().Order(StringComparer.Ordinal));

    /// <summary>Gives the record of a format; nothing for those that the library does not know.</summary>
    internal static FormatRecord? Find(FileFormat format) => Array.Find(All, record => record.Has(format));

    /// <summary>Tells the format of a source.</summary>
    internal static FileFormat Detect(SourceWindow source)
    {
        if (source.Head.IsEmpty)
        {
            return FileFormat.Undefined;
        }

        foreach (FormatRecord record in All)
        {
            FileFormat found = record.Detect(source);
            if (found != FileFormat.Undefined)
            {
                return found;
            }
        }

        return FileFormat.Undefined;
    }

    /// <summary>Says of a source that cannot be read what it is.</summary>
    internal static string Explain(SourceWindow source, FileFormat format) =>
        All.Select(record => record.Explain(source)).FirstOrDefault(static reason => reason is not null)
        ?? (format == FileFormat.Undefined
            ? "is of no known format"
            : $"is of format {Verify.NameOf(format)}, which cannot be read yet");

    /// <summary>Tells whether files of a format can be read.</summary>
    internal static bool CanRead(FileFormat format) => Find(format)?.Read is not null;

    /// <summary>Gives what writes some content with options of a class; nothing where it cannot be written so.</summary>
    internal static FormatWriter? FindWriter(object content, Type options) =>
        ByOptions.Value.GetValueOrDefault(options) is { } writer && writer.KindOf(content) is not null ? writer : null;

    /// <summary>Gives the classes of options that some content can be written with, by their names.</summary>
    internal static IEnumerable<Type> OptionTypesFor(object content) =>
        ByOptions.Value.Values.Where(writer => writer.KindOf(content) is not null)
            .Select(static writer => writer.OptionsType).OrderBy(static type => type.Name, StringComparer.Ordinal);

    /// <summary>Gives the classes of options that write some content in one of several formats.</summary>
    internal static IEnumerable<Type> OptionTypesFor(object content, IReadOnlyCollection<FileFormat> formats) =>
        All.Where(record => (record.Written ?? record.Formats).Any(formats.Contains))
            .SelectMany(static record => record.Writers)
            .Where(writer => writer.KindOf(content) is not null)
            .Select(static writer => writer.OptionsType).Distinct();

    /// <summary>Gives the options that write content back in the format that it was read from; nothing where that
    /// is not written, or the content is of another model than the format's own.</summary>
    internal static ImageOptionsBase? OwnOptions(object content, OwnPlace place) =>
        Find(place.Format)?.OwnOptions(content, place);

    private static Dictionary<Type, FormatWriter> IndexWriters() =>
        All.SelectMany(static record => record.Writers).ToDictionary(static writer => writer.OptionsType);
}
