using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of unsigned numbers of 32 bits.</summary>
public class TiffLongType : TiffCommonArrayType
{
    private long[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffLongType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its values.</param>
    public TiffLongType(int tagId, long[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public long[] Values
    {
        get => _values;
        set
        {
            Verify.NotNull(value);
            VerifyRange(value, 0, uint.MaxValue);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Long;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 4;

    /// <inheritdoc/>
    public override double[] ToDoubles() => System.Array.ConvertAll(_values, static v => (double)v);

    internal override void Read(TiffStreamReader reader, long position, int count)
    {
        _values = new long[count];
        for (int i = 0; i < count; i++)
        {
            _values[i] = reader.ReadULong(position + (4L * i));
        }
    }

    internal override void Write(TiffStreamWriter writer)
    {
        foreach (long value in _values)
        {
            writer.WriteULong(value);
        }
    }
}
