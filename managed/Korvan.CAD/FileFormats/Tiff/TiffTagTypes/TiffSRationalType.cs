using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of fractions of signed numbers.</summary>
public class TiffSRationalType : TiffCommonArrayType
{
    private TiffSRational[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffSRationalType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its values.</param>
    public TiffSRationalType(int tagId, TiffSRational[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public TiffSRational[] Values
    {
        get => _values;
        set
        {
            Verify.NoneIsNull(value);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.SRational;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 8;

    /// <inheritdoc/>
    public override double[] ToDoubles() => System.Array.ConvertAll(_values, static v => v.Value);

    internal override void Read(TiffStreamReader reader, long position, int count)
    {
        _values = new TiffSRational[count];
        for (int i = 0; i < count; i++)
        {
            _values[i] = reader.ReadSRational(position + (8L * i));
        }
    }

    internal override void Write(TiffStreamWriter writer)
    {
        foreach (TiffSRational value in _values)
        {
            writer.WriteSRational(value);
        }
    }
}
