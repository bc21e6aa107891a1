using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are IEEE 754 floating-point numbers of 32 bits.</summary>
public class TiffFloatType : TiffCommonArrayType
{
    private readonly TagValues<float> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffFloatType(int tagId)
        : this(tagId, new TagValues<float>(TagElements.Float))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values.</param>
    public TiffFloatType(int tagId, float[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffFloatType(int tagId, TagValues<float> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public float[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Float;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Float.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
