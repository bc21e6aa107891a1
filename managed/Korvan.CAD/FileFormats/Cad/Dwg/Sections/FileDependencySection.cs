using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>The section AcDb:FileDepList. Source: Open Design Specification for .dwg files, 5.4.1, chapter
/// 17.</summary>
internal static class FileDependencySection
{
    private const int MinLength = 34; // of an entry with empty strings

    /// <summary>Reads a section.</summary>
    /// <returns>The files up to the first damaged entry.</returns>
    internal static List<FileDependency> Read(ReadOnlySpan<byte> section, SectionText text)
    {
        RawReader reader = new(section);
        List<string> features = [];
        uint count = reader.UInt32();
        for (uint i = 0; i < count && reader.Remaining >= sizeof(int); i++)
        {
            features.Add(text.ReadLong(ref reader));
        }

        List<FileDependency> files = [];
        count = reader.UInt32();
        for (uint i = 0; i < count && reader.Remaining >= MinLength; i++)
        {
            string name = text.ReadLong(ref reader);
            string path = text.ReadLong(ref reader);
            string fingerprint = text.ReadLong(ref reader);
            string version = text.ReadLong(ref reader);
            int feature = reader.Int32();
            FileDependency file = new(feature >= 0 && feature < features.Count ? features[feature] : "", name, path,
                fingerprint, version, reader.Int32(), reader.Int32(), reader.UInt16() != 0, reader.Int32());
            if (reader.IsShort)
            {
                break;
            }

            files.Add(file);
        }

        return files;
    }

    internal static byte[] Write(IReadOnlyList<FileDependency> files, SectionText text)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        List<string> features = [.. files.Select(static file => file.Feature).Distinct()];
        writer.Write(features.Count);
        features.ForEach(feature => text.WriteLong(writer, feature));
        writer.Write(files.Count);
        foreach (FileDependency file in files)
        {
            text.WriteLong(writer, file.FullName);
            text.WriteLong(writer, file.FoundPath);
            text.WriteLong(writer, file.Fingerprint);
            text.WriteLong(writer, file.Version);
            writer.Write(features.IndexOf(file.Feature));
            writer.Write(file.Time);
            writer.Write(file.Size);
            writer.Write((short)(file.AffectsGraphics ? 1 : 0));
            writer.Write(file.References);
        }

        return stream.ToArray();
    }
}
