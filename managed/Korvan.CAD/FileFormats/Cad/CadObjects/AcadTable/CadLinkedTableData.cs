using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>The data of a table: its columns, rows and cells.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbLinkedData")]
[CadBits("T Name", "T Description", "Part[BL] Columns", "Part[BL] Rows", "H[BL] FieldHandles")]
public abstract partial class CadLinkedTableData : CadObjectBase
{
    internal CadLinkedTableData()
    {
    }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the description. Group code 300.</summary>
    [CadString(300)]
    public string Description { get; set; } = "";

    /// <summary>Gets the columns. The list is live. Group code 90.</summary>
    [CadRepeated(300, Count = 90)]
    [CadSubclass("AcDbLinkedTableData")]
    public IList<TableDataColumn> Columns { get; } = new CheckedList<TableDataColumn>("columns");

    /// <summary>Gets the rows. The list is live. Group code 91.</summary>
    [CadRepeated(301, Count = 91)]
    public IList<TableDataRow> Rows { get; } = new CheckedList<TableDataRow>("rows");

    /// <summary>Gets the handles of the fields in cells, in hexadecimal. The list is live. Group code 360.</summary>
    [CadList(360, Count = 92)]
    public List<string> FieldHandles { get; } = [];
}
