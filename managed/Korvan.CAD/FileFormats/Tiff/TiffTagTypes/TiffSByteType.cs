using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are signed 8-bit integers.</summary>
public class TiffSByteType : TiffCommonArrayType
{
    private readonly TagValues<int> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffSByteType(int tagId)
        : this(tagId, new TagValues<int>(TagElements.SByte))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values, each -128 to 127.</param>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public TiffSByteType(int tagId, int[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffSByteType(int tagId, TagValues<int> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values, each -128 to 127.</summary>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public int[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.SByte;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.SByte.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
