using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Defines a pattern of coloured cells.</summary>
public sealed class PatternTable : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public PatternTable()
        : base(ClassCode.AttributeElement, (int)AttributeElement.PatternTable)
    {
    }

    /// <summary>Gets or sets the index that areas call the pattern by, from 1.</summary>
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the count of cells in a line.</summary>
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of lines.</summary>
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets how many bits a colour, or one of its components, has in a binary file: 0 for as many as
    /// in the metafile, 1, 2, 4, 8, 16, 24 or 32.</summary>
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, line by line: numbers of colours, or 0xAARRGGBB where the picture selects
    /// colours by their components.</summary>
    public int[] Cells { get; set; } = [1];

    internal override void Exchange(ParameterExchange x)
    {
        Index = x.Index(Index);
        CellsPerLine = x.Integer(CellsPerLine);
        LineCount = x.Integer(LineCount);
        LocalPrecision = PrecisionRules.ExchangeLocal(x, LocalPrecision);
        Cells = x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: false);
    }
}
