using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads and writes the resource blocks of a PSD.</summary>
internal static class PsdResources
{
    internal const int ResolutionInfo = 1005;

    internal static ResourceBlock[] Of(byte[] data, string name) => [.. ReadAll(PsdReader.ResourceBytes(data, name))];

    /// <summary>Returns the content of a block; empty where there is none.</summary>
    internal static ReadOnlySpan<byte> Find(ReadOnlySpan<byte> section, int id)
    {
        while (Next(ref section, out int found, out _, out ReadOnlySpan<byte> content))
        {
            if (found == id)
            {
                return content;
            }
        }

        return [];
    }

    internal static List<ResourceBlock> ReadAll(ReadOnlySpan<byte> section)
    {
        List<ResourceBlock> blocks = [];
        while (Next(ref section, out int id, out string name, out ReadOnlySpan<byte> content))
        {
            ResourceBlock block = Read(id, content);
            block.MarkRead(name);
            blocks.Add(block);
        }

        return blocks;
    }

    internal static void Write(Stream output, ResourceBlock block)
    {
        byte[] name = Encoding.UTF8.GetBytes(block.Name);
        byte[] data = block.ToBytes();
        Span<byte> header = stackalloc byte[6];
        "8BIM"u8.CopyTo(header);
        BinaryPrimitives.WriteUInt16BigEndian(header[4..], (ushort)block.ID);
        output.Write(header);
        output.WriteByte((byte)name.Length);
        output.Write(name);
        Pad(output, name.Length + 1);
        Span<byte> size = stackalloc byte[4];
        BinaryPrimitives.WriteInt32BigEndian(size, data.Length);
        output.Write(size);
        output.Write(data);
        Pad(output, data.Length);
    }

    private static ResourceBlock Read(int id, ReadOnlySpan<byte> content)
    {
        try
        {
            return id switch
            {
                GridAndGuidesResouce.Number => GridAndGuidesResouce.Read(content),
                Thumbnail4Resource.OldNumber => new Thumbnail4Resource(ThumbnailResource.JpegOf(content, id)),
                ThumbnailResource.Number => new ThumbnailResource(ThumbnailResource.JpegOf(content, id)),
                TransparencyIndexResource.Number => TransparencyIndexResource.Read(content),
                XmpResouce.Number => new XmpResouce(new XmpPacketWrapper(Encoding.UTF8.GetString(content))),
                _ => new UnknownResource(id, content.ToArray()),
            };
        }
        catch (Exception e) when (e is XmpException or JpegException)
        {
            throw new PsdImageResourceException($"Resource {id} is damaged.", e);
        }
    }

    private static bool Next(
        scoped ref ReadOnlySpan<byte> section, out int id, out string name, out ReadOnlySpan<byte> content)
    {
        (id, name) = (0, "");
        content = default;
        if (section.Length < 12)
        {
            return false;
        }

        id = BinaryPrimitives.ReadUInt16BigEndian(section[4..]);
        int nameBytes = section[6];
        int at = 6 + ((nameBytes + 2) & ~1);
        int size = at + 4 <= section.Length ? BinaryPrimitives.ReadInt32BigEndian(section[at..]) : -1;
        if (size < 0 || size > section.Length - at - 4)
        {
            throw new PsdImageResourceException($"Resource {id} reaches past the end of the resources.");
        }

        name = Encoding.UTF8.GetString(section.Slice(7, nameBytes));
        content = section.Slice(at + 4, size);
        section = section[Math.Min(section.Length, at + 4 + size + (size & 1))..];
        return true;
    }

    private static void Pad(Stream output, int count)
    {
        if ((count & 1) != 0)
        {
            output.WriteByte(0);
        }
    }
}
