using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A parallelogram of coloured cells.</summary>
[CgmCommand(GraphicalPrimitiveElement.CellArray, "CELLARRAY")]
public sealed partial class CellArray : Command
{
    /// <summary>Gets or sets the corner P, where the first cell lies.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner Q, opposite to P.</summary>
    [CgmPoint]
    public CgmPoint OppositeCorner { get; set; } = new(1, 1);

    /// <summary>Gets or sets the corner R, at the end of the first row of cells.</summary>
    [CgmPoint]
    public CgmPoint LineEnd { get; set; } = new(1, 0);

    /// <summary>Gets or sets the count of cells in a row.</summary>
    [CgmInteger]
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of rows.</summary>
    [CgmInteger]
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets the bits of a colour index, or of a colour component, in a binary file: 1, 2, 4, 8, 16, 24
    /// or 32, or 0 for the precision of the metafile.</summary>
    [CgmLocalBits]
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, row by row: colour indexes, or 0xAARRGGBB where the colour selection mode is
    /// direct.</summary>
    [CgmCustom]
    public int[] Cells { get; set; } = [0];

    private int[] ExchangeCells(ParameterExchange x) =>
        x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: true);
}

/// <summary>A compressed tile of an image.</summary>
[CgmCommand]
public abstract partial class TileElement : Command
{
    /// <summary>Gets or sets the index of the compression type; negative ones are private.</summary>
    [CgmIndex]
    public int CompressionIndex { get; set; } = 5;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public CompressionType Compression
    {
        get => (CompressionType)CompressionIndex;
        set => CompressionIndex = (int)value;
    }

    /// <summary>Gets or sets the bits that each row is padded to a multiple of; 0 for none.</summary>
    [CgmInteger]
    public int RowPadding { get; set; }

    /// <summary>Gets or sets the parameters of the compression.</summary>
    [CgmRecord]
    public StructuredDataRecord Parameters { get; set; } = new();

    /// <summary>Gets or sets the compressed cells; a byte may be appended to make their count even.</summary>
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

    /// <summary>The colour parameters, between the row padding and the parameters of the compression.</summary>
    private protected abstract void ExchangeColors(ParameterExchange x);
}

/// <summary>A tile of coloured cells.</summary>
[CgmCommand(GraphicalPrimitiveElement.Tile, "TILE")]
public sealed partial class Tile : TileElement
{
    /// <summary>Gets or sets the bits of a colour index, or of a colour component: 1, 2, 4, 8, 16, 24 or 32, or 0 for
    /// the precision of the metafile.</summary>
    public int CellPrecision { get; set; }

    private protected override void ExchangeColors(ParameterExchange x) =>
        CellPrecision = x.LocalBits(CellPrecision);
}

/// <summary>A tile of two colours.</summary>
[CgmCommand(GraphicalPrimitiveElement.BitonalTile, "BITONALTILE")]
public sealed partial class BitonalTile : TileElement
{
    /// <summary>Gets or sets the background colour, of cells that are 0.</summary>
    public CgmColor Background { get; set; } = new(0);

    /// <summary>Gets or sets the foreground colour, of cells that are 1.</summary>
    public CgmColor Foreground { get; set; } = new(1);

    private protected override void ExchangeColors(ParameterExchange x)
    {
        Background = x.Color(Background);
        Foreground = x.Color(Foreground);
    }
}
