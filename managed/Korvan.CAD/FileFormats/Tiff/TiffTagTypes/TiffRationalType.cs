using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of fractions of unsigned numbers.</summary>
public class TiffRationalType : TiffCommonArrayType
{
    private TiffRational[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffRationalType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its values.</param>
    public TiffRationalType(int tagId, TiffRational[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public TiffRational[] Values
    {
        get => _values;
        set
        {
            Verify.NoneIsNull(value);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Rational;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 8;

    /// <inheritdoc/>
    public override double[] ToDoubles() => System.Array.ConvertAll(_values, static v => v.Value);

    internal override void Read(TiffStreamReader reader, long position, int count)
    {
        _values = new TiffRational[count];
        for (int i = 0; i < count; i++)
        {
            _values[i] = reader.ReadRational(position + (8L * i));
        }
    }

    internal override void Write(TiffStreamWriter writer)
    {
        foreach (TiffRational value in _values)
        {
            writer.WriteRational(value);
        }
    }
}
