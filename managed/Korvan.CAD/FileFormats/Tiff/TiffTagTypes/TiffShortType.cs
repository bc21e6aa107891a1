using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are unsigned 16-bit integers.</summary>
public class TiffShortType : TiffCommonArrayType
{
    private readonly TagValues<int> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffShortType(int tagId)
        : this(tagId, new TagValues<int>(TagElements.Short))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values, each 0 to 65535.</param>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public TiffShortType(int tagId, int[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffShortType(int tagId, TagValues<int> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values, each 0 to 65535.</summary>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public int[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Short;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Short.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
