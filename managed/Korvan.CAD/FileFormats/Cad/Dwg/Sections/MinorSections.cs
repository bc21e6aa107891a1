using System;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.RevHistory;
using Korvan.CAD.FileFormats.Cad.Dwg.VbaProject;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>Sections of a few fields. Source: Open Design Specification for .dwg files, 5.4.1, chapters 15, 18, 21, 22
/// and 27.</summary>
internal static class MinorSections
{
    private const int FirstOfFourValues = 2007;

    private static ReadOnlySpan<byte> VbaHeader => [0, 0, 0, 0, 0, 0, 0, 0, 0, 0x1C, 0, 0, 0x19, 0, 0, 0];

    internal static RevHistoryData? ReadRevHistory(ReadOnlySpan<byte> section, int release)
    {
        RawReader reader = new(section);
        int[] values = new int[release < FirstOfFourValues ? 3 : 4];
        for (int i = 0; i < values.Length; i++)
        {
            values[i] = reader.Int32();
        }

        return reader.IsShort ? null : new RevHistoryData(values, reader.Take(reader.Remaining).ToArray());
    }

    internal static byte[] WriteRevHistory(RevHistoryData? data, int release)
    {
        int[] values = data?.Values ?? (release < FirstOfFourValues ? [0, 0, 0] : [0, 0, 1, 0]);
        byte[] section = new byte[values.Length * sizeof(int)];
        for (int i = 0; i < values.Length; i++)
        {
            BinaryPrimitives.WriteInt32LittleEndian(section.AsSpan(i * sizeof(int)), values[i]);
        }

        return [.. section, .. data?.Rest ?? []];
    }

    internal static VbaProjectData? ReadVbaProject(ReadOnlySpan<byte> section) =>
        section.Length <= VbaHeader.Length + sizeof(int) ? null
            : new VbaProjectData(section[VbaHeader.Length..^sizeof(int)].ToArray());

    internal static byte[] WriteVbaProject(VbaProjectData data) => [.. VbaHeader, .. data.Data, 0, 0, 0, 0];

    /// <summary>Reads the section AcDb:Template.</summary>
    /// <returns>The system of measures: 0 imperial, 1 metric; <see langword="null"/> if the section does not state
    /// it.</returns>
    internal static int? ReadMeasurement(ReadOnlySpan<byte> section, int release)
    {
        RawReader reader = new(section);
        int length = reader.UInt16();
        reader.Skip(release < FirstOfFourValues ? length : 2 * length);
        int measurement = reader.UInt16();
        return reader.IsShort ? null : measurement;
    }

    internal static byte[] WriteTemplate(int measurement) => [0, 0, (byte)(measurement != 0 ? 1 : 0), 0];

    /// <summary>Writes the section AcDb:ObjFreeSpace.</summary>
    /// <param name="release">The release as a year.</param>
    /// <param name="objects">The number of objects.</param>
    /// <param name="updated">When the drawing was changed.</param>
    internal static byte[] WriteFreeSpace(int release, int objects, double updated)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        bool isWide = release >= 2010;
        WriteWide(writer, 0, isWide);
        WriteWide(writer, objects, isWide);
        SummaryInfoSection.WriteTime(writer, updated);
        if (!isWide)
        {
            writer.Write(0);
        }

        writer.Write((byte)4);
        foreach (uint value in new uint[] { 0x32, 0x64, 0x200, uint.MaxValue })
        {
            WriteWide(writer, value, isWide);
            WriteWide(writer, 0, isWide);
        }

        return stream.ToArray();
    }

    /// <summary>Writes the section AcDb:AuxHeader.</summary>
    internal static byte[] WriteAuxHeader(int release, ulong seed, double created, double updated)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        short number = DwgContent.NumberOf(release);
        writer.Write([0xFF, 0x77, 0x01]);
        writer.Write(number);
        writer.Write((short)0);
        writer.Write(1);
        writer.Write(-1);
        writer.Write((short)1);
        writer.Write((short)0);
        writer.Write(0);
        foreach (short value in new short[] { number, 0, number, 0, 5, 0x893, 5, 0x893, 0, 1 })
        {
            writer.Write(value);
        }

        writer.Write(new byte[20]);
        SummaryInfoSection.WriteTime(writer, created);
        SummaryInfoSection.WriteTime(writer, updated);
        writer.Write(seed < int.MaxValue ? (int)seed : -1);
        writer.Write(new byte[6]);
        writer.Write((short)1);
        writer.Write(new byte[12]);
        writer.Write(1);
        writer.Write(new byte[release >= 2018 ? 22 : 16]);
        return stream.ToArray();
    }

    private static void WriteWide(BinaryWriter writer, long value, bool isWide)
    {
        if (isWide)
        {
            writer.Write(value);
            return;
        }

        writer.Write((uint)value);
    }
}
