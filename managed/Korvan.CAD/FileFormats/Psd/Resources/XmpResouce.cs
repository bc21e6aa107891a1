using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The resource of XMP metadata, number 1060.</summary>
public class XmpResouce : ResourceBlock
{
    internal const int Number = 1060;

    private XmpPacketWrapper _xmpData;

    /// <summary>Creates a block.</summary>
    /// <param name="xmpData">The metadata.</param>
    public XmpResouce(XmpPacketWrapper xmpData)
        : base(Number)
    {
        Verify.NotNull(xmpData);
        _xmpData = xmpData;
    }

    /// <summary>Gets or sets the metadata.</summary>
    public XmpPacketWrapper XmpData
    {
        get => _xmpData;
        set
        {
            Verify.NotNull(value);
            _xmpData = value;
            Change();
        }
    }

    /// <inheritdoc/>
    public override byte[] ToBytes() => _xmpData.ToBytes();
}
