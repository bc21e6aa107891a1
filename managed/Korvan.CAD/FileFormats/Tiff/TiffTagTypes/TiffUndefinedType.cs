using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field of bytes whose meaning the field's number tells.</summary>
public class TiffUndefinedType : TiffCommonArrayType
{
    private byte[] _values = [];

    /// <summary>Creates a field without values.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffUndefinedType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="values">Its bytes.</param>
    public TiffUndefinedType(int tagId, byte[] values)
        : base(tagId)
    {
        Values = values;
    }

    /// <summary>Gets or sets the bytes.</summary>
    public byte[] Values
    {
        get => _values;
        set
        {
            Verify.NotNull(value);
            _values = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Undefined;

    /// <inheritdoc/>
    public override int Count => _values.Length;

    /// <inheritdoc/>
    public override int ElementSize => 1;

    /// <inheritdoc/>
    public override double[] ToDoubles() => Array.ConvertAll(_values, static v => (double)v);

    internal override void Read(TiffStreamReader reader, long position, int count) => _values = reader.ReadBytes(position, count);

    internal override void Write(TiffStreamWriter writer) => writer.Write(_values);
}
