using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Writes drawing databases of release 2000. Source: Open Design Specification for .dwg files, 5.4.1, chapters
/// 3 and 26.</summary>
internal sealed class PlainWriter
{
    private const int Locators = 6;
    private const int LocatorLength = 9;
    private const int FirstLocator = 0x19;
    private const int HeaderLength = FirstLocator + (Locators * LocatorLength) + 2 + Sentinels.Length;
    private const int PaddingLength = 0x200;

    private readonly DwgContent _content;
    private readonly MemoryStream _file = new();
    private readonly (int Start, int Length)[] _locators = new (int, int)[Locators];

    private PlainWriter(DwgContent content)
    {
        _content = content;
    }

    internal static void Write(DwgContent content, Stream output)
    {
        PlainWriter writer = new(content);
        writer.WriteSections();
        output.Write(writer._file.GetBuffer(), 0, (int)writer._file.Length);
    }

    private void WriteSections()
    {
        _file.Write(new byte[HeaderLength]);
        Add(5, _content.AuxHeader);
        Add(0, FramedSection.Write(_content.Header.Span, Sentinels.Header, 0, 0));
        Add(1, FramedSection.Write(_content.Classes.Span, Sentinels.Classes, 0, 0));
        _file.Write(new byte[PaddingLength]);
        long objects = _file.Position;
        _file.Write(_content.Objects.Bytes);
        Add(2, _content.Objects.WriteMap(objects));
        Add(3, _content.ObjFreeSpace);
        Add(4, _content.Template);
        _file.Write(WriteSecondHeader());
        int preview = (int)_file.Position;
        _file.Write(PreviewSection.Write(_content.PreviewImage, preview));
        _file.Position = 0;
        _file.Write(WriteHeader(preview));
    }

    private void Add(int number, ReadOnlySpan<byte> section)
    {
        _locators[number] = section.IsEmpty ? default : ((int)_file.Position, section.Length);
        _file.Write(section);
    }

    private byte[] WriteHeader(int preview)
    {
        byte[] header = new byte[HeaderLength];
        Encoding.ASCII.GetBytes(_content.Version.ToString(), header);
        header[0x0B] = (byte)DwgContent.MaintenanceOf(_content.Version);
        header[0x0C] = 1;
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(0x0D), preview);
        header[0x11] = DwgContent.NumberOf(_content.Release);
        BinaryPrimitives.WriteInt16LittleEndian(header.AsSpan(0x13), (short)_content.CodePage);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(0x15), Locators);
        int at = FirstLocator;
        for (int i = 0; i < Locators; i++, at += LocatorLength)
        {
            header[at] = (byte)i;
            BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(at + 1), _locators[i].Start);
            BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(at + 5), _locators[i].Length);
        }

        ushort checksum = PlainContainer.HeaderChecksum(header.AsSpan(0, at), Locators);
        BinaryPrimitives.WriteUInt16LittleEndian(header.AsSpan(at), checksum);
        Sentinels.EndOfFileHeader.CopyTo(header.AsSpan(at + 2));
        return header;
    }

    // A copy of the file header in bit codes, and the handles that lead to everything else.
    private byte[] WriteSecondHeader()
    {
        const int junk = 8;
        BitWriter bits = new();
        bits.BitLong((int)_file.Position);
        bits.Raw(Encoding.ASCII.GetBytes(_content.Version.ToString()));
        bits.Raw([0, 0, 0, 0, 0, (byte)DwgContent.MaintenanceOf(_content.Version), 1]);
        bits.BitShort(DwgContent.NumberOf(_content.Release));
        bits.RawShort(_content.CodePage);
        bits.BitLong(Locators);
        for (int i = 0; i < Locators; i++)
        {
            bits.RawByte(i);
            bits.BitLong(_locators[i].Start);
            bits.BitLong(_locators[i].Length);
        }

        bits.BitShort(_content.SecondHeaderHandles.Length);
        for (int i = 0; i < _content.SecondHeaderHandles.Length; i++)
        {
            AddHandle(bits, i, _content.SecondHeaderHandles[i]);
        }

        List<byte> section = [.. new byte[sizeof(int)], .. bits.Bytes];
        byte[] data = [.. section];
        BinaryPrimitives.WriteInt32LittleEndian(data, data.Length + 2 + junk);
        ushort checksum = Crc16.Compute(Crc16.Seed, data);
        return [.. Sentinels.SecondHeader, .. data, (byte)checksum, (byte)(checksum >> 8), .. new byte[junk],
            .. Sentinels.EndOf(Sentinels.SecondHeader)];
    }

    private static void AddHandle(BitWriter bits, int index, ulong handle)
    {
        Span<byte> bytes = stackalloc byte[sizeof(ulong)];
        BinaryPrimitives.WriteUInt64BigEndian(bytes, handle);
        ReadOnlySpan<byte> used = bytes.TrimStart((byte)0);
        bits.RawByte(used.Length);
        bits.RawByte(index);
        bits.Raw(used);
    }
}
