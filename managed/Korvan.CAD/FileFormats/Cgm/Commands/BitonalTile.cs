using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A tile of cells of two colours.</summary>
public sealed class BitonalTile : TileElement
{
    /// <summary>Creates the element with its defaults.</summary>
    public BitonalTile()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.BitonalTile)
    {
    }

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
