using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>The data of a table with formats and merged cells.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbFormattedTableData")]
[CadBits("base", "Part Format", "Part[BL] MergedCells")]
public abstract partial class CadFormattedTableData : CadLinkedTableData
{
    internal CadFormattedTableData()
    {
    }

    /// <summary>Gets the format of the table.</summary>
    [CadPart]
    [CadLabel(300, "TABLEFORMAT")]
    public CadTableFormat Format { get; } = new();

    /// <summary>Gets the merged cells. The list is live. Group code 90.</summary>
    [CadRepeated(91, Count = 90)]
    public IList<FormattedTableCellRange> MergedCells { get; } =
        new CheckedList<FormattedTableCellRange>("merged_cells");
}
