using System;
using System.Collections.Generic;
using System.Reflection;

namespace Korvan.CAD.Formats;

/// <summary>The metadata of the members of <see cref="FileFormat"/>.</summary>
internal static class Metadata
{
    private static readonly Lazy<Dictionary<FileFormat, FileFormatMetadataAttribute>> Known = new(ReadAll);

    /// <summary>Gets the metadata by format.</summary>
    internal static IReadOnlyDictionary<FileFormat, FileFormatMetadataAttribute> All => Known.Value;

    internal static FileFormatMetadataAttribute Of(FileFormat format) => Known.Value[format];

    private static Dictionary<FileFormat, FileFormatMetadataAttribute> ReadAll()
    {
        Dictionary<FileFormat, FileFormatMetadataAttribute> all = [];
        foreach (FileFormat format in Enum.GetValues<FileFormat>())
        {
            FieldInfo member = typeof(FileFormat).GetField(format.ToString())!;
            if (member.GetCustomAttribute<FileFormatMetadataAttribute>() is { } metadata)
            {
                all.Add(format, metadata);
            }
        }

        return all;
    }
}
