using System;
using System.IO;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>The section AcDb:SummaryInfo. Source: Open Design Specification for .dwg files, 5.4.1, chapter
/// 13.</summary>
internal static class SummaryInfoSection
{
    private const double MillisecondsOfDay = 86_400_000;

    /// <summary>Reads a section.</summary>
    /// <returns>What the drawing states; <see langword="null"/> if the section is empty or damaged.</returns>
    internal static SummaryInfoData? Read(ReadOnlySpan<byte> section, SectionText text)
    {
        RawReader reader = new(section);
        SummaryInfoData data = new()
        {
            Title = text.Read(ref reader),
            Subject = text.Read(ref reader),
            Author = text.Read(ref reader),
            Keywords = text.Read(ref reader),
            Comments = text.Read(ref reader),
            LastSavedBy = text.Read(ref reader),
            RevisionNumber = text.Read(ref reader),
            HyperlinkBase = text.Read(ref reader),
            TotalEditingTime = ReadTime(ref reader),
            CreateTime = ReadTime(ref reader),
            UpdateTime = ReadTime(ref reader),
        };
        int count = reader.UInt16();
        for (int i = 0; i < count && !reader.IsShort; i++)
        {
            data.CustomNames.Add(text.Read(ref reader));
            data.CustomValues.Add(text.Read(ref reader));
        }

        return section.IsEmpty || reader.IsShort ? null : data;
    }

    internal static byte[] Write(SummaryInfoData data, SectionText text)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        foreach (string value in new[]
        {
            data.Title, data.Subject, data.Author, data.Keywords, data.Comments, data.LastSavedBy, data.RevisionNumber,
            data.HyperlinkBase,
        })
        {
            text.Write(writer, value);
        }

        WriteTime(writer, data.TotalEditingTime);
        WriteTime(writer, data.CreateTime);
        WriteTime(writer, data.UpdateTime);
        int count = Math.Min(data.CustomNames.Count, data.CustomValues.Count);
        writer.Write((ushort)count);
        for (int i = 0; i < count; i++)
        {
            text.Write(writer, data.CustomNames[i]);
            text.Write(writer, data.CustomValues[i]);
        }

        writer.Write(0L);
        return stream.ToArray();
    }

    private static double ReadTime(ref RawReader reader) =>
        reader.Int32() + (reader.Int32() / MillisecondsOfDay);

    /// <summary>Writes days and milliseconds.</summary>
    internal static void WriteTime(BinaryWriter writer, double time)
    {
        HeaderValue value = HeaderVariableCodec.TimeOf(time);
        writer.Write((int)value.X);
        writer.Write((int)value.Y);
    }
}
