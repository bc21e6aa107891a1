using System;
using System.IO;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The preview image: a directory of images and their data between two sentinels. Source: Open Design
/// Specification for .dwg files, 5.4.1, chapter 14.</summary>
internal static class PreviewSection
{
    private const int SizeLength = 4;
    private const int EntryLength = 9;
    private const int HeaderLength = 80;
    private const int Header = 1;
    private const int Bitmap = 2;
    private const int Png = 6;

    /// <summary>Returns the preview of a file with its sentinels; nothing if there is none at the address.</summary>
    internal static byte[] Cut(DwgSource source, uint address)
    {
        RawReader reader = new(source.Data);
        reader.Seek(address);
        if (address == 0 || !reader.Take(Sentinels.Length).SequenceEqual(Sentinels.Preview))
        {
            return [];
        }

        long length = Sentinels.Length + SizeLength + (long)reader.UInt32() + Sentinels.Length;
        return length > source.Data.Length - address ? [] : source.Data.AsSpan((int)address, (int)length).ToArray();
    }

    /// <summary>Returns the bitmap of a preview without its file header, or a whole file in the PNG format; empty if
    /// there is neither.</summary>
    internal static ReadOnlySpan<byte> ImageOf(ReadOnlySpan<byte> section)
    {
        RawReader reader = new(section);
        if (!reader.Take(Sentinels.Length).SequenceEqual(Sentinels.Preview))
        {
            return default;
        }

        reader.Skip(SizeLength);
        int count = reader.Byte();
        long data = reader.Position + (count * EntryLength);
        long first = long.MaxValue;
        (uint Start, uint Length) found = default;
        for (int i = 0; i < count && !reader.IsShort; i++)
        {
            int code = reader.Byte();
            (uint start, uint length) = (reader.UInt32(), reader.UInt32());
            first = length > 0 ? Math.Min(first, start) : first;
            found = code is Bitmap or Png && length > 0 ? (start, length) : found;
        }

        // Addresses count from the start of the file, so that only their distance tells where an image is.
        RawReader images = new(section);
        images.Seek(data + found.Start - first);
        ReadOnlySpan<byte> image = images.Take(found.Length);
        return reader.IsShort || images.IsShort ? default : image;
    }

    /// <summary>Writes a preview.</summary>
    /// <param name="image">A bitmap without its file header, or a file in the PNG format; empty for none.</param>
    /// <param name="address">Where the section is in the file.</param>
    internal static byte[] Write(ReadOnlySpan<byte> image, long address)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        int count = image.IsEmpty ? 1 : 2;
        int start = (int)address + Sentinels.Length + SizeLength + 1 + (count * EntryLength);
        writer.Write(Sentinels.Preview);
        writer.Write(1 + (count * EntryLength) + HeaderLength + image.Length);
        writer.Write((byte)count);
        WriteEntry(writer, Header, start, HeaderLength);
        if (!image.IsEmpty)
        {
            WriteEntry(writer, IsPng(image) ? Png : Bitmap, start + HeaderLength, image.Length);
        }

        writer.Write(new byte[HeaderLength]);
        writer.Write(image);
        writer.Write(Sentinels.EndOf(Sentinels.Preview));
        return stream.ToArray();
    }

    internal static bool IsPng(ReadOnlySpan<byte> image) =>
        image.StartsWith((ReadOnlySpan<byte>)[0x89, (byte)'P', (byte)'N', (byte)'G']);

    private static void WriteEntry(BinaryWriter writer, int code, int start, int length)
    {
        writer.Write((byte)code);
        writer.Write(start);
        writer.Write(length);
    }
}
