using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Drawing databases of releases 13, 14 and 2000, whose sections are found by a list of locators at the start.
/// Source: Open Design Specification for .dwg files, 5.4.1, chapter 3.</summary>
internal static class PlainContainer
{
    private const string FileHeader = "file header";
    private const int PreviewAddress = 0x0D;
    private const int CodePageOffset = 0x13;
    private const int LocatorCount = 0x15;
    private const int FirstLocator = 0x19;
    private const int LocatorLength = 9;
    private const int MaxLocators = 32;

    private enum Part
    {
        Header,
        Classes,
        Map,
        FreeSpace,
        Template,
        AuxHeader,
    }

    internal static DwgFile Read(DwgSource source, CadAcadVersion version)
    {
        byte[] data = source.Data;
        if (data.Length < FirstLocator)
        {
            throw source.Fail(LoadDefectCode.Truncated, FileHeader, data.Length, "the file ends within its header");
        }

        int codePage = BitConverter.ToUInt16(data, CodePageOffset);
        DwgFile file = new()
        {
            Source = source,
            Version = version,
            MaintenanceVersion = data[0x0B],
            CodePage = codePage,
            Encoding = source.EncodingOf(codePage),
            Objects = data,
            Preview = PreviewSection.Cut(source, BitConverter.ToUInt32(data, PreviewAddress)),
        };
        Dictionary<int, Locator> parts = ReadLocators(source);
        file.Header = Framed(source, parts, Part.Header, "AcDb:Header", Sentinels.Header);
        file.Classes = Framed(source, parts, Part.Classes, "AcDb:Classes", Sentinels.Classes);
        file.ObjFreeSpace = Optional(source, parts, Part.FreeSpace, "AcDb:ObjFreeSpace");
        file.Template = Optional(source, parts, Part.Template, "AcDb:Template");
        file.AuxHeader = Optional(source, parts, Part.AuxHeader, "AcDb:AuxHeader");
        ReadOnlySpan<byte> map = Bytes(source, parts, Part.Map, ObjectMap.Section, out long start);
        file.Map = start < 0 ? ObjectMap.Empty : ObjectMap.Read(source, map, start);
        return file;
    }

    private static Dictionary<int, Locator> ReadLocators(DwgSource source)
    {
        RawReader reader = new(source.Data);
        reader.Seek(LocatorCount);
        uint count = reader.UInt32();
        if (count is < 3 or > MaxLocators || FirstLocator + (count * LocatorLength) > source.Data.Length)
        {
            source.Report(LoadDefectCode.CountTooLarge, FileHeader, LocatorCount,
                $"{count} section locators are announced; 3 to {MaxLocators} were expected");
            count = (uint)Math.Min(Enum.GetValues<Part>().Length, (source.Data.Length - FirstLocator) / LocatorLength);
        }

        Dictionary<int, Locator> parts = [];
        for (uint i = 0; i < count; i++)
        {
            int part = reader.Byte();
            parts.TryAdd(part, new Locator(reader.UInt32(), reader.UInt32()));
        }

        int end = reader.Position;
        if (reader.UInt16() != HeaderChecksum(source.Data.AsSpan(0, end), (int)count))
        {
            source.Report(LoadDefectCode.WrongChecksum, FileHeader, end,
                "the file header has another checksum than it states");
        }

        return parts;
    }

    /// <summary>Returns the checksum of a file header, which depends on the number of its locators.</summary>
    internal static ushort HeaderChecksum(ReadOnlySpan<byte> header, int locators) =>
        (ushort)(Crc16.Compute(0, header) ^ locators switch
        {
            3 => 0xA598,
            4 => 0x8101,
            5 => 0x3CC4,
            6 => 0x8461,
            _ => 0,
        });

    private static ReadOnlyMemory<byte> Framed(
        DwgSource source, Dictionary<int, Locator> parts, Part part, string name, ReadOnlySpan<byte> sentinel)
    {
        ReadOnlySpan<byte> bytes = Bytes(source, parts, part, name, out long start);
        return start < 0 ? default
            : FramedSection.Open(source, source.Data.AsMemory((int)start, bytes.Length), name, sentinel, 0, start);
    }

    private static byte[] Optional(DwgSource source, Dictionary<int, Locator> parts, Part part, string name) =>
        parts.ContainsKey((int)part) ? Bytes(source, parts, part, name, out _).ToArray() : [];

    // What extends beyond the end of the file is cut there.
    private static ReadOnlySpan<byte> Bytes(
        DwgSource source, Dictionary<int, Locator> parts, Part part, string name, out long start)
    {
        start = -1;
        if (!parts.TryGetValue((int)part, out Locator found))
        {
            source.Report(LoadDefectCode.InvalidSection, name, -1, "the file has no such section");
            return default;
        }

        if (found.Length == 0 && part > Part.Map)
        {
            return default;
        }

        long length = source.Data.Length;
        if (found.Start >= length || found.Start + (long)found.Length > length)
        {
            source.Report(LoadDefectCode.Truncated, name, found.Start,
                $"the section of {found.Length} bytes is beyond the end of the file, which has {length} bytes");
        }

        start = found.Start < length ? found.Start : -1;
        return start < 0 ? default : source.Data.AsSpan((int)start, (int)Math.Min(found.Length, length - start));
    }

    private readonly record struct Locator(uint Start, uint Length);
}
