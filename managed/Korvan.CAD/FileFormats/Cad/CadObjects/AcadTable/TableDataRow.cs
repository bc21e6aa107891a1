using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A row of a table.</summary>
[CadSequence]
[CadLabel(301, "ROW")]
[CadLabel(1, "LINKEDTABLEDATAROW_BEGIN")]
[CadEnd(309, "TABLEROW_END")]
[CadBits("Part[BL] Cells", "BL DataFlags", "Part[BL] CustomData", "Part Format", "BL StyleId", "BD Height")]
public partial class TableDataRow
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableDataRow()
    {
    }

    /// <summary>Gets the cells. The list is live. Group code 90.</summary>
    [CadRepeated(300, Count = 90)]
    public IList<TableDataCell> Cells { get; } = new CheckedList<TableDataCell>("cells");

    /// <summary>Gets or sets flags of the attached values. Group code 91.</summary>
    [CadInt(91)]
    public int DataFlags { get; set; }

    /// <summary>Gets the values that programs attached. The list is live. Group code 90.</summary>
    [CadRepeated(300, Count = 90)]
    [CadLabel(301, "CUSTOMDATA")]
    [CadLabel(1, "DATAMAP_BEGIN")]
    public IList<TableCustomData> CustomData { get; } = new CheckedList<TableCustomData>("custom_data");

    /// <summary>Gets the format.</summary>
    [CadPart]
    [CadLabel(309, "DATAMAP_END")]
    [CadLabel(309, "LINKEDTABLEDATAROW_END")]
    [CadLabel(1, "FORMATTEDTABLEDATAROW_BEGIN")]
    [CadLabel(300, "ROWTABLEFORMAT")]
    public CadTableFormat Format { get; } = new();

    /// <summary>Gets or sets the number of the cell style. Group code 90.</summary>
    [CadInt(90)]
    [CadLabel(309, "FORMATTEDTABLEDATAROW_END")]
    [CadLabel(1, "TABLEROW_BEGIN")]
    public int StyleId { get; set; }

    /// <summary>Gets or sets the height, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double Height { get; set; }
}
