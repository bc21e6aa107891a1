using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of floating point numbers of 64 bits.</summary>
public class TiffDoubleType : TiffCommonArrayType
{
    private double[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffDoubleType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its values.</param>
    public TiffDoubleType(int tagId, double[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public double[] Values
    {
        get => _values;
        set
        {
            Verify.NotNull(value);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Double;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 8;

    /// <inheritdoc/>
    public override double[] ToDoubles() => System.Array.ConvertAll(_values, static v => v);

    internal override void Read(TiffStreamReader reader, long position, int count)
    {
        _values = new double[count];
        for (int i = 0; i < count; i++)
        {
            _values[i] = reader.ReadDouble(position + (8L * i));
        }
    }

    internal override void Write(TiffStreamWriter writer)
    {
        foreach (double value in _values)
        {
            writer.WriteDouble(value);
        }
    }
}
