using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A cell of a table.</summary>
[CadSequence]
[CadLabel(300, "CELL")]
[CadLabel(1, "LINKEDTABLEDATACELL_BEGIN")]
[CadEnd(309, "TABLECELL_END")]
[CadBits(
    "BL Flags", "T Tooltip", "BL DataFlags", "Part[BL] CustomData", "BL HasLinkedData",
    "if HasLinkedData != 0: H DataLinkHandle", "if HasLinkedData != 0: BL LinkedRowCount",
    "if HasLinkedData != 0: BL LinkedColumnCount", "if HasLinkedData != 0: BL LinkFlags", "Part[BL] Contents",
    "Part Format", "BL StyleId", "BL HasGeometry", "if HasGeometry != 0: BL GeometryFlags",
    "if HasGeometry != 0: BD Width", "if HasGeometry != 0: BD Height", "if HasGeometry != 0: H GeometryHandle",
    "if HasGeometry != 0: Part[BL] Geometry")]
public partial class TableDataCell
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableDataCell()
    {
    }

    /// <summary>Gets or sets flags: 1 the content is locked, 2 the format is locked, 4 merged. Group code 90.</summary>
    [CadInt(90)]
    public int Flags { get; set; }

    /// <summary>Gets or sets the tooltip. Group code 300.</summary>
    [CadString(300)]
    public string Tooltip { get; set; } = "";

    /// <summary>Gets or sets flags of the attached values. Group code 91.</summary>
    [CadInt(91)]
    public int DataFlags { get; set; }

    /// <summary>Gets the values that programs attached. The list is live. Group code 90.</summary>
    [CadRepeated(300, Count = 90)]
    [CadLabel(301, "CUSTOMDATA")]
    [CadLabel(1, "DATAMAP_BEGIN")]
    public IList<TableCustomData> CustomData { get; } = new CheckedList<TableCustomData>("custom_data");

    /// <summary>Gets or sets whether the content comes from another file: 0 no, 1 yes. Group code 92.</summary>
    [CadInt(92)]
    [CadLabel(309, "DATAMAP_END")]
    public int HasLinkedData { get; set; }

    /// <summary>Gets or sets the handle of the link to that file in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    [CadWhen("HasLinkedData != 0")]
    public string DataLinkHandle { get; set; } = "0";

    /// <summary>Gets or sets the number of linked rows. Group code 93.</summary>
    [CadInt(93)]
    [CadWhen("HasLinkedData != 0")]
    public int LinkedRowCount { get; set; }

    /// <summary>Gets or sets the number of linked columns. Group code 94.</summary>
    [CadInt(94)]
    [CadWhen("HasLinkedData != 0")]
    public int LinkedColumnCount { get; set; }

    /// <summary>Gets or sets flags of the link. Group code 96.</summary>
    [CadInt(96)]
    [CadWhen("HasLinkedData != 0")]
    public int LinkFlags { get; set; }

    /// <summary>Gets the contents. The list is live. Group code 95.</summary>
    [CadRepeated(302, Count = 95)]
    public IList<TableDataCellContent> Contents { get; } = new CheckedList<TableDataCellContent>("contents");

    /// <summary>Gets the format.</summary>
    [CadPart]
    [CadLabel(309, "LINKEDTABLEDATACELL_END")]
    [CadLabel(1, "FORMATTEDTABLEDATACELL_BEGIN")]
    [CadLabel(300, "CELLTABLEFORMAT")]
    public CadTableFormat Format { get; } = new();

    /// <summary>Gets or sets the number of the cell style. Group code 90.</summary>
    [CadInt(90)]
    [CadLabel(309, "FORMATTEDTABLEDATACELL_END")]
    [CadLabel(1, "TABLECELL_BEGIN")]
    public int StyleId { get; set; }

    /// <summary>Gets or sets whether the size is stated: 0 no, 1 yes. Group code 91.</summary>
    [CadInt(91)]
    public int HasGeometry { get; set; }

    /// <summary>Gets or sets flags of the size. Group code 91.</summary>
    [CadInt(91)]
    [CadWhen("HasGeometry != 0")]
    public int GeometryFlags { get; set; }

    /// <summary>Gets or sets the width with the gaps, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    [CadWhen("HasGeometry != 0")]
    public double Width { get; set; }

    /// <summary>Gets or sets the height with the gaps, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    [CadWhen("HasGeometry != 0")]
    public double Height { get; set; }

    /// <summary>Gets or sets the handle of the table geometry in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    [CadWhen("HasGeometry != 0")]
    public string GeometryHandle { get; set; } = "0";

    /// <summary>Gets the sizes of the contents. The list is live. Group code 94.</summary>
    [CadRepeated(10, Count = 94)]
    [CadWhen("HasGeometry != 0")]
    public IList<CellContentGeometry> Geometry { get; } = new CheckedList<CellContentGeometry>("geometry");
}
