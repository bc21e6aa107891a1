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

/// <summary>The records of all formats of the library.</summary>
internal static class FormatRegistry
{
    /// <summary>Gets all records, in the order in which files are tried: binary signatures before text.</summary>
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

    // Programs ask for the same pair again and again; one reference, so that threads never see half of it.
    private static LastChoice? _last;

    /// <summary>Gets the names of the formats that can be read, for messages.</summary>
    internal static string ReadableNames => string.Join(", ", All.Where(static record => record.Read is not null)
        .Select(static record => record.Name).Distinct().Order(StringComparer.Ordinal));

    /// <summary>Gives the record of a format; nothing for those that the library does not know.</summary>
    internal static FormatRecord? Find(FileFormat format) => Array.Find(All, record => record.Has(format));

    /// <summary>Detects the format of a source.</summary>
    internal static FileFormat Detect(SourceWindow source)
    {
        if (source.FirstBytes.IsEmpty)
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

    /// <summary>Explains why a source cannot be read.</summary>
    internal static string Explain(SourceWindow source, FileFormat format) =>
        All.Select(record => record.Explain(source)).FirstOrDefault(static reason => reason is not null)
        ?? (format == FileFormat.Undefined
            ? "is of no known format"
            : $"is of format {Verify.NameOf(format)}, which cannot be read yet");

    /// <summary>Returns whether files of a format can be read.</summary>
    internal static bool CanRead(FileFormat format) =>
        Array.Exists(All, record => record.Read is not null && record.Has(format));

    /// <summary>Returns whether files of a format can be written.</summary>
    internal static bool CanWrite(FileFormat format) => Array.Exists(
        All, record => record.Writers.Length > 0 && FormatRecord.Has(record.Written ?? record.Formats, format));

    /// <summary>Returns the writer of some content with options of a class; <see langword="null"/> if there is
    /// none.</summary>
    internal static FormatWriter? FindWriter(object content, Type options)
    {
        LastChoice? last = _last;
        if (last is not null && last.Options == options && last.Content == content.GetType())
        {
            return last.Writer;
        }

        FormatWriter? writer = ByOptions.Value.GetValueOrDefault(options);
        writer = writer?.KindOf(content) is null ? null : writer;
        _last = new LastChoice(content.GetType(), options, writer);
        return writer;
    }

    /// <summary>Returns the classes of options with which some content can be written, by name.</summary>
    internal static IEnumerable<Type> OptionTypesFor(object content) =>
        ByOptions.Value.Values.Where(writer => writer.KindOf(content) is not null)
            .Select(static writer => writer.OptionsType).OrderBy(static type => type.Name, StringComparer.Ordinal);

    /// <summary>Gives the classes of options that write some content in one of several formats.</summary>
    internal static IEnumerable<Type> OptionTypesFor(object content, IReadOnlyCollection<FileFormat> formats) =>
        All.Where(record => (record.Written ?? record.Formats).Any(formats.Contains))
            .SelectMany(static record => record.Writers)
            .Where(writer => writer.KindOf(content) is not null)
            .Select(static writer => writer.OptionsType).Distinct();

    /// <summary>Returns the options that write content back in the format that it was read from; <see langword="null"/>
    /// if the format is not written, or the content is of another model.</summary>
    internal static ImageOptionsBase? OwnOptions(object content, SaveTarget place) =>
        Find(place.Format)?.OwnOptions(content, place);

    private sealed record LastChoice(Type Content, Type Options, FormatWriter? Writer);

    private static Dictionary<Type, FormatWriter> IndexWriters() =>
        All.SelectMany(static record => record.Writers).ToDictionary(static writer => writer.OptionsType);
}
