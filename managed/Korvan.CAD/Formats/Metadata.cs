using System;
using System.Collections.Generic;
using System.Reflection;

namespace Korvan.CAD.Formats;

/// <summary>What the members of <see cref="FileFormat"/> say of themselves.</summary>
internal static class Metadata
{
    private static readonly Lazy<Dictionary<FileFormat, FileFormatMetadataAttribute>> Known = new(ReadAll);

    /// <summary>Gets all formats that files have, in the order of their numbers.</summary>
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
