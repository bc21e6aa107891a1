using System;
using System.Collections.Generic;
using System.Reflection;

namespace Korvan.CAD.Formats;

/// <summary>The metadata of the members of <see cref="FileFormat"/>. They are read one by one: a program asks for few
/// of them, and attributes take long to be read.</summary>
internal static class Metadata
{
    // By number, since generic code over the enumeration would be compiled at its first use.
    private static readonly Dictionary<ulong, FileFormatMetadataAttribute?> Known = [];

    private static readonly Lazy<Dictionary<ulong, FieldInfo>> Members = new(ReadMembers);

    /// <summary>Gets the formats that have metadata, in the order of their values.</summary>
    internal static IEnumerable<FileFormat> Formats
    {
        get
        {
            ulong[] values = [.. Members.Value.Keys];
            Array.Sort(values);
            foreach (ulong value in values)
            {
                if (Find((FileFormat)value) is not null)
                {
                    yield return (FileFormat)value;
                }
            }
        }
    }

    /// <summary>Returns the metadata of a format; <see langword="null"/> where it has none.</summary>
    internal static FileFormatMetadataAttribute? Find(FileFormat format)
    {
        lock (Known)
        {
            if (!Known.TryGetValue((ulong)format, out FileFormatMetadataAttribute? metadata))
            {
                metadata = Members.Value.GetValueOrDefault((ulong)format)
                    ?.GetCustomAttribute<FileFormatMetadataAttribute>();
                Known.Add((ulong)format, metadata);
            }

            return metadata;
        }
    }

    /// <summary>Returns the metadata of a format that has some.</summary>
    internal static FileFormatMetadataAttribute Of(FileFormat format) =>
        Find(format) ?? throw new ArgumentOutOfRangeException(nameof(format), format, "It has no metadata.");

    private static Dictionary<ulong, FieldInfo> ReadMembers()
    {
        Dictionary<ulong, FieldInfo> members = [];
        foreach (FieldInfo member in typeof(FileFormat).GetFields(BindingFlags.Public | BindingFlags.Static))
        {
            members.TryAdd((ulong)member.GetRawConstantValue()!, member);
        }

        return members;
    }
}
