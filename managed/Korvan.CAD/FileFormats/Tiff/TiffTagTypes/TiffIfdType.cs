using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are offsets of other directories.</summary>
public class TiffIfdType : TiffCommonArrayType
{
    private readonly TagValues<long> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffIfdType(int tagId)
        : this(tagId, new TagValues<long>(TagElements.Long))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values, each 0 to 4294967295.</param>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public TiffIfdType(int tagId, long[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffIfdType(int tagId, TagValues<long> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values, each 0 to 4294967295.</summary>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public long[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Ifd;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Long.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
