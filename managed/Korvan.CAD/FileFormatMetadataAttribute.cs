using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats;

namespace Korvan.CAD;

/// <summary>States name, family, category and file extensions of a format.</summary>
[AttributeUsage(AttributeTargets.Field)]
public sealed class FileFormatMetadataAttribute : Attribute
{
    /// <summary>Creates the attribute.</summary>
    /// <param name="name">The name of the format.</param>
    /// <param name="family">The family that it belongs to.</param>
    /// <param name="category">The kind of content.</param>
    /// <param name="extensions">The file extensions with their period, the default one first.</param>
    public FileFormatMetadataAttribute(
        string name, FileFormatFamily family, FileFormatCategory category, params string[] extensions)
    {
        Verify.NotNull(extensions);
        Name = name;
        Family = family;
        Category = category;
        Extensions = extensions;
    }

    /// <summary>Gets the name of the format.</summary>
    public string Name { get; }

    /// <summary>Gets the family that the format belongs to.</summary>
    public FileFormatFamily Family { get; }

    /// <summary>Gets the kind of content.</summary>
    public FileFormatCategory Category { get; }

    /// <summary>Gets the file extensions with their period, the default one first.</summary>
    public string[] Extensions { get; }
}
