using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A parallelogram of coloured cells.</summary>
[CgmCommand(GraphicalPrimitiveElement.CellArray, "CELLARRAY")]
public sealed partial class CellArray : Command
{
    /// <summary>Gets or sets the corner (P) that the first cell lies at.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner (Q) opposite to the first.</summary>
    [CgmPoint]
    public CgmPoint OppositeCorner { get; set; } = new(1, 1);

    /// <summary>Gets or sets the corner (R) that the first line of cells leads to.</summary>
    [CgmPoint]
    public CgmPoint LineEnd { get; set; } = new(1, 0);

    /// <summary>Gets or sets the count of cells in a line.</summary>
    [CgmInteger]
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of lines.</summary>
    [CgmInteger]
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets how many bits a colour, or one of its components, has in a binary file: 0 for as many as
    /// in the metafile, 1, 2, 4, 8, 16, 24 or 32.</summary>
    [CgmLocalBits]
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, line by line: numbers of colours, or 0xAARRGGBB where the picture selects
    /// colours by their components.</summary>
    [CgmCustom]
    public int[] Cells { get; set; } = [0];

    private int[] ExchangeCells(ParameterExchange x) =>
        x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: true);
}

/// <summary>A tile of an image, with its cells as they are packed.</summary>
[CgmCommand]
public abstract partial class TileElement : Command
{
    /// <summary>Gets or sets the number of how the cells are packed; negative ones are private.</summary>
    [CgmIndex]
    public int CompressionIndex { get; set; } = 5;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public CompressionType Compression { get => (CompressionType)CompressionIndex; set => CompressionIndex = (int)value; }

    /// <summary>Gets or sets to how many bits each line is filled up, 0 for none.</summary>
    [CgmInteger]
    public int RowPadding { get; set; }

    /// <summary>Gets or sets what the way of packing needs to know besides.</summary>
    [CgmRecord]
    public StructuredDataRecord Parameters { get; set; } = new();

    /// <summary>Gets or sets the packed cells; a byte may be added to make their count even.</summary>
    [CgmBits]
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

/// <summary>A tile of coloured cells.</summary>
[CgmCommand(GraphicalPrimitiveElement.Tile, "TILE")]
public sealed partial class Tile : TileElement
{
    /// <summary>Gets or sets how many bits a colour, or one of its components, has: 0 for as many as in the metafile,
    /// 1, 2, 4, 8, 16, 24 or 32.</summary>
    public int CellPrecision { get; set; }

    private protected override void ExchangeColors(ParameterExchange x) =>
        CellPrecision = x.LocalBits(CellPrecision);
}

/// <summary>A tile of cells of two colours.</summary>
[CgmCommand(GraphicalPrimitiveElement.BitonalTile, "BITONALTILE")]
public sealed partial class BitonalTile : TileElement
{
    /// <summary>Gets or sets the colour of cells that are 0.</summary>
    public CgmColor Background { get; set; } = new(0);

    /// <summary>Gets or sets the colour of cells that are 1.</summary>
    public CgmColor Foreground { get; set; } = new(1);

    private protected override void ExchangeColors(ParameterExchange x)
    {
        Background = x.Color(Background);
        Foreground = x.Color(Foreground);
    }
}
