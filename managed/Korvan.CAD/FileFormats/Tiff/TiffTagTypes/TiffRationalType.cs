using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are fractions of unsigned 32-bit integers.</summary>
public class TiffRationalType : TiffCommonArrayType
{
    private readonly TagValues<TiffRational> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffRationalType(int tagId)
        : this(tagId, new TagValues<TiffRational>(TagElements.Rational))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values.</param>
    public TiffRationalType(int tagId, TiffRational[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffRationalType(int tagId, TagValues<TiffRational> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public TiffRational[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Rational;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.Rational.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
