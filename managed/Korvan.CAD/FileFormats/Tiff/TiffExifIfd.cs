using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.InstanceFactory;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>A directory of fields, as TIFF and Exif have them (TIFF 6.0, section 2).</summary>
public class TiffExifIfd
{
    internal const int EntryBytes = 12;

    /// <summary>Fields may share bytes; were they all to share the whole block, its size would multiply.</summary>
    private const int MaxSharing = 4;

    private readonly SortedDictionary<int, TiffDataType> _tags = [];

    /// <summary>Creates an empty directory.</summary>
    public TiffExifIfd()
    {
    }

    /// <summary>Gets the fields, in the order of their numbers.</summary>
    public TiffDataType[] Tags => [.. _tags.Values];

    /// <summary>Gets how many fields there are.</summary>
    public int Count => _tags.Count;

    /// <summary>Gets the place of the next directory in the file that this one was read from; 0 for none.</summary>
    public long NextOffset { get; private set; }

    /// <summary>Reads a directory.</summary>
    /// <param name="reader">What reads the block.</param>
    /// <param name="offset">The place of the directory in it.</param>
    /// <returns>A directory.</returns>
    /// <exception cref="TiffImageException">The directory or values of it lie outside of the block.</exception>
    public static TiffExifIfd Read(TiffStreamReader reader, long offset)
    {
        Verify.NotNull(reader);
        int count = reader.ReadUShort(offset);
        var directory = new TiffExifIfd();
        long left = reader.Length * MaxSharing;
        for (int i = 0; i < count; i++)
        {
            TiffDataType tag = ReadTag(reader, offset + 2 + (EntryBytes * i), left);
            left -= tag.DataSize;
            directory.Set(tag);
        }

        // A directory at the very end of a block may lack the link to the next.
        long next = offset + 2 + (EntryBytes * count);
        directory.NextOffset = next + 4 <= reader.Length ? reader.ReadULong(next) : 0;
        return directory;
    }

    /// <summary>Gives a field, or nothing.</summary>
    /// <param name="tagId">Its number.</param>
    /// <returns>A field, or nothing.</returns>
    public TiffDataType? Get(int tagId) => _tags.GetValueOrDefault(tagId);

    /// <summary>Adds a field, or replaces that of the same number.</summary>
    /// <param name="tag">The field.</param>
    public void Set(TiffDataType tag)
    {
        Verify.NotNull(tag);
        _tags[tag.TagId] = tag;
    }

    /// <summary>Takes a field out.</summary>
    /// <param name="tagId">Its number.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(int tagId) => _tags.Remove(tagId);

    /// <summary>Takes all fields out.</summary>
    public void Clear() => _tags.Clear();

    /// <summary>How many bytes the directory takes, with its values.</summary>
    internal long Size => 2 + (EntryBytes * Kept.Count()) + 4 + Kept.Sum(static tag => tag.DataSize > 4 ? PaddedSize(tag.DataSize) : 0);

    private IEnumerable<TiffDataType> Kept => _tags.Values.Where(static tag => tag is not TiffUnknownType && tag.Count > 0);

    /// <summary>Writes the directory, its values right behind it.</summary>
    internal void Write(TiffStreamWriter writer, long offset, long next)
    {
        TiffDataType[] kept = [.. Kept];
        writer.WriteUShort(kept.Length);
        long place = offset + 2 + (EntryBytes * kept.Length) + 4;
        foreach (TiffDataType tag in kept)
        {
            writer.WriteUShort(tag.TagId);
            writer.WriteUShort((int)tag.TagType);
            writer.WriteULong(tag.Count);
            if (tag.DataSize > 4)
            {
                writer.WriteULong(place);
                place += PaddedSize(tag.DataSize);
                continue;
            }

            tag.Write(writer);
            Pad(writer, 4 - tag.DataSize);
        }

        writer.WriteULong(next);
        foreach (TiffDataType tag in kept.Where(static tag => tag.DataSize > 4))
        {
            tag.Write(writer);
            Pad(writer, PaddedSize(tag.DataSize) - tag.DataSize);
        }
    }

    private static TiffDataType ReadTag(TiffStreamReader reader, long entry, long left)
    {
        int id = reader.ReadUShort(entry);
        int type = reader.ReadUShort(entry + 2);
        long count = reader.ReadULong(entry + 4);
        if (!TiffTagFactory.Knows(type) || count > int.MaxValue)
        {
            return new TiffUnknownType(id, type, (int)Math.Min(count, int.MaxValue), reader.ReadBytes(entry + 8, 4));
        }

        TiffDataType tag = TiffTagFactory.CreateTag(id, (Enums.TiffDataTypes)type);
        long size = count * tag.ElementSize;
        long position = size <= 4 ? entry + 8 : reader.ReadULong(entry + 8);
        if (position + size > reader.Length || size > left)
        {
            throw new TiffImageException(
                $"Field {id} claims {count} values at {position}, past the end of a block of {reader.Length} bytes.");
        }

        tag.Read(reader, position, (int)count);
        return tag;
    }

    private static long PaddedSize(long size) => (size + 1) & ~1L;

    private static void Pad(TiffStreamWriter writer, long count)
    {
        for (; count > 0; count--)
        {
            writer.WriteByte(0);
        }
    }
}
