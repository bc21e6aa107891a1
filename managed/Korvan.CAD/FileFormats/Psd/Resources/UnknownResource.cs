using System;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>A block that is kept as it is.</summary>
public class UnknownResource : ResourceBlock
{
    private byte[] _data;

    /// <summary>Creates a block.</summary>
    /// <param name="id">The number that tells what it holds, 0 to 65535.</param>
    /// <param name="data">Its content.</param>
    public UnknownResource(int id, byte[] data)
        : base(id)
    {
        ArgumentOutOfRangeException.ThrowIfNegative(id);
        ArgumentOutOfRangeException.ThrowIfGreaterThan(id, ushort.MaxValue);
        ArgumentNullException.ThrowIfNull(data);
        _data = data;
    }

    /// <summary>Gets or sets the content.</summary>
    public byte[] Data
    {
        get => _data;
        set
        {
            ArgumentNullException.ThrowIfNull(value);
            _data = value;
            Change();
        }
    }

    /// <inheritdoc/>
    public override byte[] ToBytes() => (byte[])_data.Clone();
}
