using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are signed 16-bit integers.</summary>
public class TiffSShortType : TiffCommonArrayType
{
    private readonly TagValues<int> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffSShortType(int tagId)
        : this(tagId, new TagValues<int>(TagElements.SShort))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values, each -32768 to 32767.</param>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public TiffSShortType(int tagId, int[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffSShortType(int tagId, TagValues<int> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values, each -32768 to 32767.</summary>
    /// <exception cref="System.ArgumentOutOfRangeException">A value is out of range.</exception>
    public int[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.SShort;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.SShort.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
