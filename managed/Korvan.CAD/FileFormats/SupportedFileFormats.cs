using System;
using System.Linq;
using Korvan.CAD.Formats;

namespace Korvan.CAD.FileFormats;

/// <summary>The formats that this build of the library loads and writes.</summary>
public static class SupportedFileFormats
{
    private static FileFormatInfo[] Describe(Func<FileFormat, bool> isSupported)
    {
        return [.. FileFormatInfo.All.Where(info => isSupported(info.Format))];
    }

    private static string[] ExtensionsOf(Func<FileFormat, bool> isSupported)
    {
        return
        [
            .. Describe(isSupported).SelectMany(static info => info.Extensions).Distinct()
                .Order(StringComparer.Ordinal),
        ];
    }

    /// <summary>The formats that can be loaded.</summary>
    public static class Input
    {
        /// <summary>Gets the formats, in the order of their values.</summary>
        public static FileFormatInfo[] Formats => Describe(FormatRegistry.CanRead);

        /// <summary>Gets the extensions of files that can be loaded, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(FormatRegistry.CanRead);

        /// <summary>Returns whether files of a format can be loaded.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be loaded.</returns>
        public static bool Contains(FileFormat format) => FormatRegistry.CanRead(format);
    }

    /// <summary>The formats that can be written.</summary>
    public static class Output
    {
        /// <summary>Gets the formats, in the order of their values.</summary>
        public static FileFormatInfo[] Formats => Describe(FormatRegistry.CanWrite);

        /// <summary>Gets the extensions of files that can be written, in alphabetical order.</summary>
        public static string[] Extensions => ExtensionsOf(FormatRegistry.CanWrite);

        /// <summary>Returns whether files of a format can be written.</summary>
        /// <param name="format">The format.</param>
        /// <returns>Whether files of a format can be written.</returns>
        public static bool Contains(FileFormat format) => FormatRegistry.CanWrite(format);
    }
}
