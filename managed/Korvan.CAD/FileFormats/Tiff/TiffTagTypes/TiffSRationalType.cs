using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are fractions of signed 32-bit integers.</summary>
public class TiffSRationalType : TiffCommonArrayType
{
    private readonly TagValues<TiffSRational> _values;

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    public TiffSRationalType(int tagId)
        : this(tagId, new TagValues<TiffSRational>(TagElements.SRational))
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="values">The values.</param>
    public TiffSRationalType(int tagId, TiffSRational[] values)
        : this(tagId)
    {
        Values = values;
    }

    private TiffSRationalType(int tagId, TagValues<TiffSRational> values)
        : base(tagId, values)
    {
        _values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public TiffSRational[] Values
    {
        get => _values.Items;
        set => _values.Items = value;
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.SRational;

    /// <inheritdoc/>
    public override int Count => _values.Count;

    /// <inheritdoc/>
    public override int ElementSize => TagElements.SRational.Size;

    /// <inheritdoc/>
    public override double[] ToDoubles() => _values.ToDoubles();
}
