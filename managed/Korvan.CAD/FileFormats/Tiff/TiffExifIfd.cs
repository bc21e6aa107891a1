using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.InstanceFactory;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>An image file directory (IFD): a set of tags (TIFF 6.0, section 2).</summary>
public class TiffExifIfd
{
    internal const int EntryBytes = 12;

    /// <summary>Tags may share bytes; if all shared the whole block, its size would multiply.</summary>
    private const int MaxSharing = 4;

    private readonly SortedDictionary<int, TiffDataType> _tags = [];

    /// <summary>Creates an empty directory.</summary>
    public TiffExifIfd()
    {
    }

    /// <summary>Gets the tags in the order of their numbers.</summary>
    public TiffDataType[] Tags => [.. _tags.Values];

    /// <summary>Gets the number of tags.</summary>
    public int Count => _tags.Count;

    /// <summary>Gets the offset of the next directory in the file that this one was read from; 0 for none.</summary>
    public long NextOffset { get; private set; }

    /// <summary>Reads a directory.</summary>
    /// <param name="reader">A reader over the block.</param>
    /// <param name="offset">The offset of the directory in the block.</param>
    /// <returns>The directory.</returns>
    /// <exception cref="TiffImageException">The directory or some of its values lie outside the block.</exception>
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

    /// <summary>Returns a tag, or <see langword="null"/> where the directory has none.</summary>
    /// <param name="tagId">The tag number.</param>
    /// <returns>The tag, or <see langword="null"/>.</returns>
    public TiffDataType? Get(int tagId) => _tags.GetValueOrDefault(tagId);

    /// <summary>Adds a tag, or replaces the tag of the same number.</summary>
    /// <param name="tag">The tag.</param>
    public void Set(TiffDataType tag)
    {
        Verify.NotNull(tag);
        _tags[tag.TagId] = tag;
    }

    /// <summary>Removes a tag.</summary>
    /// <param name="tagId">The tag number.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(int tagId) => _tags.Remove(tagId);

    /// <summary>Removes all tags.</summary>
    public void Clear() => _tags.Clear();

    /// <summary>Gets the size of the directory with its values in bytes.</summary>
    internal long Size =>
        2 + (EntryBytes * Kept.Count()) + 4 + Kept.Sum(static tag => tag.DataSize > 4 ? PaddedSize(tag.DataSize) : 0);

    private IEnumerable<TiffDataType> Kept =>
        _tags.Values.Where(static tag => tag is not TiffUnknownType && tag.Count > 0);

    /// <summary>Writes the directory, followed by its values.</summary>
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
                $"Tag {id} claims {count} values at {position}, past the end of a block of {reader.Length} bytes.");
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
