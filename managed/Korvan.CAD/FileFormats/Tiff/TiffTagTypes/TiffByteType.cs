using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are unsigned 8-bit integers.</summary>
public class TiffByteType : TiffCommonArrayType
{
    private readonly TagValues<byte> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffByteType(int tagId)
        : this(tagId, new TagValues<byte>(TagElements.Byte))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values.</param>
    public TiffByteType(int tagId, byte[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffByteType(int tagId, TagValues<byte> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public byte[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Byte;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Byte.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
