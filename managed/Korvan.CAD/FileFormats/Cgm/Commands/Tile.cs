using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A tile of coloured cells.</summary>
public sealed class Tile : TileElement
{
    /// <summary>Creates the element with its defaults.</summary>
    public Tile()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.Tile)
    {
    }

    /// <summary>Gets or sets how many bits a colour, or one of its components, has: 0 for as many as in the metafile,
    /// 1, 2, 4, 8, 16, 24 or 32.</summary>
    public int CellPrecision { get; set; }

    private protected override void ExchangeColors(ParameterExchange x) =>
        CellPrecision = PrecisionRules.ExchangeLocal(x, CellPrecision);
}
