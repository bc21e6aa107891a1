using System;
using System.IO;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>The section AcDb:AppInfo, whose form depends on the program that wrote it. Source: Open Design
/// Specification for .dwg files, 5.4.1, chapter 16.</summary>
internal static class AppInfoSection
{
    private const string ListName = "AppInfoDataList";
    private const int IdLength = 16;

    private static ReadOnlySpan<byte> VersionId =>
    [
        0x1B, 0xD8, 0x48, 0xF3, 0xCC, 0x0A, 0x3E, 0x4D, 0xBA, 0xB1, 0xCF, 0x81, 0xF7, 0xB4, 0x50, 0xB3,
    ];

    private static ReadOnlySpan<byte> CommentId =>
    [
        0xB8, 0xD0, 0xF0, 0x25, 0xA1, 0xD7, 0x93, 0x49, 0xB2, 0xFA, 0x9B, 0xF9, 0x28, 0x6F, 0xA1, 0xFD,
    ];

    private static ReadOnlySpan<byte> ProductId =>
    [
        0xE8, 0xE0, 0x96, 0x51, 0xC5, 0xCE, 0xB2, 0x44, 0xA8, 0xBF, 0xF6, 0xE8, 0x3B, 0x85, 0x9D, 0x44,
    ];

    /// <summary>Reads a section.</summary>
    /// <returns>The program; <see langword="null"/> if the section is empty or damaged.</returns>
    internal static AppInfoData? Read(ReadOnlySpan<byte> section, SectionText text)
    {
        RawReader reader = new(section);
        AppInfoData? data = BeginsWithName(section) ? Read18(ref reader, text) : Read21(ref reader);
        return section.IsEmpty || reader.IsShort ? null : data;
    }

    internal static byte[] Write(AppInfoData21 data)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        SectionText text = SectionText.Unicode;
        writer.Write(data.Form);
        text.Write(writer, data.Name);
        (byte[] Id, string Value)[] entries =
            [(data.VersionData, data.Version), (data.CommentData, data.Comment), (data.ProductData, data.Product)];
        entries = Array.FindAll(entries, static entry => entry.Value.Length > 0);
        writer.Write(entries.Length);
        foreach ((byte[] id, string value) in entries)
        {
            writer.Write(id);
            text.Write(writer, value);
        }

        return stream.ToArray();
    }

    private static bool BeginsWithName(ReadOnlySpan<byte> section)
    {
        RawReader reader = new(section);
        return reader.UInt16() == ListName.Length + 1;
    }

    private static AppInfoData18 Read18(ref RawReader reader, SectionText text) => new()
    {
        Name = text.Read(ref reader),
        Form = reader.Int32(),
        Code = text.Read(ref reader),
        Product = text.Read(ref reader),
        Version = text.Read(ref reader),
    };

    private static AppInfoData21 Read21(ref RawReader reader)
    {
        SectionText text = SectionText.Unicode;
        AppInfoData21 data = new() { Form = reader.Int32(), Name = text.Read(ref reader) };
        int count = reader.Int32();
        for (int i = 0; i < count && !reader.IsShort; i++)
        {
            byte[] id = reader.Take(IdLength).ToArray();
            Set(data, KindOf(id, i), id, text.Read(ref reader));
        }

        return data;
    }

    // Some programs write zeros, and all three entries.
    private static int KindOf(ReadOnlySpan<byte> id, int index) =>
        id.SequenceEqual(VersionId) ? 0 : id.SequenceEqual(CommentId) ? 1 : id.SequenceEqual(ProductId) ? 2 : index;

    private static void Set(AppInfoData21 data, int kind, byte[] id, string value)
    {
        switch (kind)
        {
            case 0:
                (data.VersionData, data.Version) = (id, value);
                break;
            case 1:
                (data.CommentData, data.Comment) = (id, value);
                break;
            case 2:
                (data.ProductData, data.Product) = (id, value);
                break;
        }
    }
}
