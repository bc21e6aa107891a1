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

    /// <summary>Gets or sets the number of how the cells are packed; negative ones are private.</summary>
    public int CompressionIndex { get; set; } = 5;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public CompressionType Compression
    {
        get => (CompressionType)CompressionIndex;
        set => CompressionIndex = (int)value;
    }

    /// <summary>Gets or sets to how many bits each line is filled up, 0 for none.</summary>
    public int RowPadding { get; set; }

    /// <summary>Gets or sets what the way of packing needs to know besides.</summary>
    public StructuredDataRecord Parameters { get; set; } = new();

    /// <summary>Gets or sets the packed cells; a byte may be added to make their count even.</summary>
    public byte[] Data { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        CompressionIndex = x.Index(CompressionIndex);
        RowPadding = x.Integer(RowPadding);
        ExchangeColors(x);
        Parameters = x.Record(Parameters);
        Data = x.Bits(Data);
    }

    /// <summary>What tells the colours of cells, between the padding and the parameters of packing.</summary>
    private protected abstract void ExchangeColors(ParameterExchange x);
}
