using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A parallelogram of coloured cells.</summary>
public sealed class CellArray : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public CellArray()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.CellArray)
    {
    }

    /// <summary>Gets or sets the corner (P) that the first cell lies at.</summary>
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner (Q) opposite to the first.</summary>
    public CgmPoint OppositeCorner { get; set; } = new(1, 1);

    /// <summary>Gets or sets the corner (R) that the first line of cells leads to.</summary>
    public CgmPoint LineEnd { get; set; } = new(1, 0);

    /// <summary>Gets or sets the count of cells in a line.</summary>
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of lines.</summary>
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets how many bits a colour, or one of its components, has in a binary file: 0 for as many as
    /// in the metafile, 1, 2, 4, 8, 16, 24 or 32.</summary>
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, line by line: numbers of colours, or 0xAARRGGBB where the picture selects
    /// colours by their components.</summary>
    public int[] Cells { get; set; } = [0];

    internal override void Exchange(ParameterExchange x)
    {
        FirstCorner = x.Point(FirstCorner);
        OppositeCorner = x.Point(OppositeCorner);
        LineEnd = x.Point(LineEnd);
        CellsPerLine = x.Integer(CellsPerLine);
        LineCount = x.Integer(LineCount);
        LocalPrecision = PrecisionRules.ExchangeLocal(x, LocalPrecision);
        Cells = x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: true);
    }
}
