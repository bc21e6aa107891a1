using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.Formats;

namespace Korvan.CAD.FileFormats;

/// <summary>Information about a file format, and its support by the library.</summary>
public class FileFormatInfo
{
    private static readonly Dictionary<ulong, FileFormatInfo> Known = [];

    private readonly FileFormatMetadataAttribute _metadata;

    private FileFormatInfo(FileFormat format, FileFormatMetadataAttribute metadata)
    {
        Format = format;
        _metadata = metadata;
    }

    /// <summary>Gets the format.</summary>
    public FileFormat Format { get; }

    /// <summary>Gets the name of the format.</summary>
    public string Name => _metadata.Name;

    /// <summary>Gets the family that the format belongs to.</summary>
    public FileFormatFamily Family => _metadata.Family;

    /// <summary>Gets the kind of content.</summary>
    public FileFormatCategory Category => _metadata.Category;

    /// <summary>Gets the file extensions with their period, the default one first.</summary>
    public string[] Extensions => [.. _metadata.Extensions];

    /// <summary>Gets whether files of the format can be loaded.</summary>
    public bool CanLoad => SupportedFileFormats.Input.Contains(Format);

    /// <summary>Gets whether files of the format can be written.</summary>
    public bool CanSave => SupportedFileFormats.Output.Contains(Format);

    internal static IEnumerable<FileFormatInfo> All => Metadata.Formats.Select(Get);

    /// <summary>Returns information about a format.</summary>
    /// <param name="format">The format.</param>
    /// <returns>The information.</returns>
    /// <exception cref="ArgumentOutOfRangeException">It is <see cref="FileFormat.Undefined"/>,
    /// <see cref="FileFormat.Custom"/>, or not a member of the enum.</exception>
    public static FileFormatInfo Get(FileFormat format)
    {
        lock (Known)
        {
            if (!Known.TryGetValue((ulong)format, out FileFormatInfo? info))
            {
                info = Metadata.Find(format) is { } metadata
                    ? new FileFormatInfo(format, metadata)
                    : throw Verify.OutOfRange(nameof(format), format, "It has to be a format of files.");
                Known.Add((ulong)format, info);
            }

            return info;
        }
    }

    /// <summary>Returns the formats with a file extension, in the order of their values.</summary>
    /// <param name="extension">The extension, with or without its period; case is ignored.</param>
    /// <returns>The formats.</returns>
    public static FileFormatInfo[] FindByExtension(string extension)
    {
        Verify.NotNull(extension);
        string wanted = extension.StartsWith('.') ? extension : "." + extension;
        return [.. All.Where(info => info._metadata.Extensions.Contains(wanted, StringComparer.OrdinalIgnoreCase))];
    }

    /// <inheritdoc/>
    public override string ToString() => $"{Name} ({string.Join(", ", _metadata.Extensions)})";
}
