using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A tile of an image, with its cells as they are packed.</summary>
public abstract class TileElement : Command
{
    private protected TileElement(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets how the cells are packed.</summary>
    public CompressionType Compression { get; set; } = CompressionType.Bitmap;

    /// <summary>Gets or sets to how many bits each line is filled up, 0 for none.</summary>
    public int RowPadding { get; set; }

    /// <summary>Gets or sets what the way of packing needs to know besides.</summary>
    public StructuredDataRecord Parameters { get; set; } = new();

    /// <summary>Gets or sets the packed cells; a byte may be added to make their count even.</summary>
    public byte[] Data { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        Compression = x.Index(Compression);
        RowPadding = x.Integer(RowPadding);
        ExchangeColors(x);
        Parameters = x.Record(Parameters);
        Data = x.Bits(Data);
    }

    /// <summary>What tells the colours of cells, between the padding and the parameters of packing.</summary>
    private protected abstract void ExchangeColors(ParameterExchange x);
}
