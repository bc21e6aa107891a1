using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Symbols of the current library at points.</summary>
public sealed class PolySymbol : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public PolySymbol()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.PolySymbol)
    {
    }

    /// <summary>Gets or sets the symbol in its library, from 1.</summary>
    public int SymbolIndex { get; set; } = 1;

    /// <summary>Gets or sets the points.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        SymbolIndex = x.Index(SymbolIndex);
        Points = x.Points(Points);
    }
}
