using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A column of a table.</summary>
[CadSequence]
[CadLabel(300, "COLUMN")]
[CadLabel(1, "LINKEDTABLEDATACOLUMN_BEGIN")]
[CadEnd(309, "TABLECOLUMN_END")]
[CadBits("T Name", "BL DataFlags", "Part[BL] CustomData", "Part Format", "BL StyleId", "BD Width")]
public partial class TableDataColumn
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableDataColumn()
    {
    }

    /// <summary>Gets or sets the name. Group code 300.</summary>
    [CadString(300)]
    public string Name { get; set; } = "";

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
    [CadLabel(309, "LINKEDTABLEDATACOLUMN_END")]
    [CadLabel(1, "FORMATTEDTABLEDATACOLUMN_BEGIN")]
    [CadLabel(300, "COLUMNTABLEFORMAT")]
    public CadTableFormat Format { get; } = new();

    /// <summary>Gets or sets the number of the cell style. Group code 90.</summary>
    [CadInt(90)]
    [CadLabel(309, "FORMATTEDTABLEDATACOLUMN_END")]
    [CadLabel(1, "TABLECOLUMN_BEGIN")]
    public int StyleId { get; set; }

    /// <summary>Gets or sets the width, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double Width { get; set; }
}
