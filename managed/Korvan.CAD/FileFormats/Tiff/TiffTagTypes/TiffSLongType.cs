using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of signed numbers of 32 bits.</summary>
public class TiffSLongType : TiffCommonArrayType
{
    private int[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffSLongType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its values.</param>
    public TiffSLongType(int tagId, int[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the values.</summary>
    public int[] Values
    {
        get => _values;
        set
        {
            Verify.NotNull(value);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.SLong;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 4;

    /// <inheritdoc/>
    public override double[] ToDoubles() => System.Array.ConvertAll(_values, static v => (double)v);

    internal override void Read(TiffStreamReader reader, long position, int count)
    {
        _values = new int[count];
        for (int i = 0; i < count; i++)
        {
            _values[i] = reader.ReadSLong(position + (4L * i));
        }
    }

    internal override void Write(TiffStreamWriter writer)
    {
        foreach (int value in _values)
        {
            writer.WriteSLong(value);
        }
    }
}
