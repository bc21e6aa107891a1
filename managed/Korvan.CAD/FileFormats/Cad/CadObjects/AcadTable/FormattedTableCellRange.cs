using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>Cells of a table that are merged.</summary>
[CadSequence]
[CadBits("BL TopRow", "BL LeftColumn", "BL BottomRow", "BL RightColumn")]
public partial class FormattedTableCellRange
{
    /// <summary>Creates the object with its defaults.</summary>
    public FormattedTableCellRange()
    {
    }

    /// <summary>Gets or sets the index of the first row, from 0. Group code 91.</summary>
    [CadInt(91)]
    public int TopRow { get; set; }

    /// <summary>Gets or sets the index of the first column, from 0. Group code 92.</summary>
    [CadInt(92)]
    public int LeftColumn { get; set; }

    /// <summary>Gets or sets the index of the last row. Group code 93.</summary>
    [CadInt(93)]
    public int BottomRow { get; set; }

    /// <summary>Gets or sets the index of the last column. Group code 94.</summary>
    [CadInt(94)]
    public int RightColumn { get; set; }
}
