using System;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag of an unknown type. Its size is unknown, too, so it is dropped when the directory is
/// written.</summary>
public class TiffUnknownType : TiffDataType
{
    internal TiffUnknownType(int tagId, int typeNumber, int count, byte[] valueOrOffset)
        : base(tagId)
    {
        TypeNumber = typeNumber;
        Count = count;
        ValueOrOffset = valueOrOffset;
    }

    /// <summary>Gets the type number in the file.</summary>
    public int TypeNumber { get; }

    /// <summary>Gets the four bytes that hold the values or their offset.</summary>
    public byte[] ValueOrOffset { get; }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Undefined;

    /// <inheritdoc/>
    public override int Count { get; }

    /// <inheritdoc/>
    public override int ElementSize => 0;

    /// <inheritdoc/>
    public override string ToString() => $"{TagId} (type {TypeNumber}): {Convert.ToHexString(ValueOrOffset)}";

    internal override void Read(TiffStreamReader reader, long position, int count) => throw new NotSupportedException();

    internal override void Write(TiffStreamWriter writer) => throw new NotSupportedException();
}
