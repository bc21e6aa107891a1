using System;
using System.IO;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>The section AcDb:AppInfo, whose form depends on the program that wrote it. Source: Open Design Specification
/// for .dwg files, 5.4.1, chapter 16.</summary>
internal static class AppInfoSection
{
    private const string ListName = "AppInfoDataList";
    private const int IdLength = 16;

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
        writer.Write(3);
        writer.Write(data.VersionData);
        text.Write(writer, data.Version);
        writer.Write(data.CommentData);
        text.Write(writer, data.Comment);
        writer.Write(data.ProductData);
        text.Write(writer, data.Product);
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
        reader.Skip(sizeof(int));
        data.VersionData = reader.Take(IdLength).ToArray();
        data.Version = text.Read(ref reader);
        data.CommentData = reader.Take(IdLength).ToArray();
        data.Comment = text.Read(ref reader);
        data.ProductData = reader.Take(IdLength).ToArray();
        data.Product = text.Read(ref reader);
        return data;
    }
}
