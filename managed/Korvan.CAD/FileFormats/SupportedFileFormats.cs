using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Formats;

namespace Korvan.CAD.FileFormats;

/// <summary>The formats that this build of the library loads and writes.</summary>
public static class SupportedFileFormats
{
    private static readonly Lazy<HashSet<FileFormat>> Loaded = new(static () => [.. FormatRegistry.Readable]);
    private static readonly Lazy<HashSet<FileFormat>> Written = new(static () => [.. FormatRegistry.Writable]);

    private static FileFormatInfo[] Describe(HashSet<FileFormat> formats)
    {
        return [.. FileFormatInfo.All.Where(info => formats.Contains(info.Format))];
    }

    private static string[] ExtensionsOf(HashSet<FileFormat> formats)
    {
        return
        [
            .. Describe(formats).SelectMany(static info => info.Extensions).Distinct().Order(StringComparer.Ordinal),
        ];
    }

    /// <summary>The formats that can be loaded.</summary>
    public static class Input
    {
        /// <summary>Gets the formats, in the order of their values.</summary>
        public static FileFormatInfo[] Formats => Describe(Loaded.Value);

        /// <summary>Gets the extensions of files that can be loaded, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(Loaded.Value);

        /// <summary>Returns whether files of a format can be loaded.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be loaded.</returns>
        public static bool Contains(FileFormat format) => Loaded.Value.Contains(format);
    }

    /// <summary>The formats that can be written.</summary>
    public static class Output
    {
        /// <summary>Gets the formats, in the order of their values.</summary>
        public static FileFormatInfo[] Formats => Describe(Written.Value);

        /// <summary>Gets the extensions of files that can be written, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(Written.Value);

        /// <summary>Returns whether files of a format can be written.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be written.</returns>
        public static bool Contains(FileFormat format) => Written.Value.Contains(format);
    }
}
