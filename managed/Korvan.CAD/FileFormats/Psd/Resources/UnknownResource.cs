using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>A resource whose content is kept unchanged.</summary>
public class UnknownResource : ResourceBlock
{
    private byte[] _data;

    /// <summary>Creates a block.</summary>
    /// <param name="id">The resource number, 0 to 65535.</param>
    /// <param name="data">Its content.</param>
    public UnknownResource(int id, byte[] data)
        : base(id)
    {
        Verify.InRange(id, 0, ushort.MaxValue);
        Verify.NotNull(data);
        _data = data;
    }

    /// <summary>Gets or sets the content.</summary>
    public byte[] Data
    {
        get => _data;
        set
        {
            Verify.NotNull(value);
            _data = value;
            Change();
        }
    }

    /// <inheritdoc/>
    public override byte[] ToBytes() => (byte[])_data.Clone();
}
