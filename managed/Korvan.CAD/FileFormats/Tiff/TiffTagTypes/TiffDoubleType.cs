using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are IEEE 754 floating-point numbers of 64 bits.</summary>
public class TiffDoubleType : TiffCommonArrayType
{
    private readonly TagValues<double> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffDoubleType(int tagId)
        : this(tagId, new TagValues<double>(TagElements.Double))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values.</param>
    public TiffDoubleType(int tagId, double[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffDoubleType(int tagId, TagValues<double> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public double[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Double;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Double.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
