using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>A tag of a directory: its number and its values.</summary>
public abstract class TiffDataType
{
    internal TiffDataType(int tagId)
    {
        Verify.InRange(tagId, 0, ushort.MaxValue);
        TagId = tagId;
    }

    /// <summary>Gets the tag number, 0 to 65535.</summary>
    public int TagId { get; }

    /// <summary>Gets the type of the values.</summary>
    public abstract TiffDataTypes TagType { get; }

    /// <summary>Gets the number of values.</summary>
    public abstract int Count { get; }

    /// <summary>Gets the size of a value in bytes.</summary>
    public abstract int ElementSize { get; }

    /// <summary>Gets the size of all values in bytes.</summary>
    public long DataSize => (long)Count * ElementSize;

    internal abstract void Read(TiffStreamReader reader, long position, int count);

    internal abstract void Write(TiffStreamWriter writer);
}
