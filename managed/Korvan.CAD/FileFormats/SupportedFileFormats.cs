using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;

namespace Korvan.CAD.FileFormats;

/// <summary>The formats that this build of the library loads and writes: asked of its readers and writers
/// themselves.</summary>
public static class SupportedFileFormats
{
    private static readonly Lazy<HashSet<FileFormat>> Loaded = new(ReadInput);
    private static readonly Lazy<HashSet<FileFormat>> Written = new(ReadOutput);

    private static HashSet<FileFormat> ReadInput()
    {
        return [.. FileFormatInfo.All.Select(static info => info.Format).Where(FormatDetector.CanRead)];
    }

    private static HashSet<FileFormat> ReadOutput()
    {
        HashSet<FileFormat> formats = [];
        foreach (Type type in DrawingExporter.OptionTypes)
        {
            formats.Add(ImageSaver.FormatOf(type));
        }

        foreach (DxfOutputVersion version in Enum.GetValues<DxfOutputVersion>().Where(static v => v != DxfOutputVersion.Original))
        {
            formats.Add(DxfRelease.ToFileFormat(DxfRelease.From(version)));
        }

        return formats;
    }

    private static FileFormatInfo[] Describe(HashSet<FileFormat> formats)
    {
        return [.. FileFormatInfo.All.Where(info => formats.Contains(info.Format))];
    }

    private static string[] ExtensionsOf(HashSet<FileFormat> formats)
    {
        return [.. Describe(formats).SelectMany(static info => info.Extensions).Distinct().Order(StringComparer.Ordinal)];
    }

    /// <summary>The formats that can be loaded.</summary>
    public static class Input
    {
        /// <summary>Gets the formats, in the order of their numbers.</summary>
        public static FileFormatInfo[] Formats => Describe(Loaded.Value);

        /// <summary>Gets the endings of the names of files that can be loaded, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(Loaded.Value);

        /// <summary>Tells whether files of a format can be loaded.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be loaded.</returns>
        public static bool Contains(FileFormat format) => Loaded.Value.Contains(format);
    }

    /// <summary>The formats that a drawing can be written in.</summary>
    public static class Output
    {
        /// <summary>Gets the formats, in the order of their numbers.</summary>
        public static FileFormatInfo[] Formats => Describe(Written.Value);

        /// <summary>Gets the endings of the names of files that can be written, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(Written.Value);

        /// <summary>Tells whether files of a format can be written.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be written.</returns>
        public static bool Contains(FileFormat format) => Written.Value.Contains(format);
    }
}
