using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A content of a table cell: a value, a field or a block.</summary>
[CadSequence]
[CadLabel(302, "CONTENT")]
[CadLabel(1, "CELLCONTENT_BEGIN")]
[CadEnd(309, "FORMATTEDCELLCONTENT_END")]
[CadBits(
    "BL ContentType", "if ContentType == 1: Part Value", "if ContentType is 2 or 4: H ObjectHandle",
    "Part[BL] AttributeList", "BS HasFormat", "if HasFormat != 0: Part Format")]
public partial class TableDataCellContent
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableDataCellContent()
    {
    }

    /// <summary>Gets or sets what the content is: 0 unknown, 1 a value, 2 a field, 4 a block. Group code 90.</summary>
    [CadInt(90)]
    public int ContentType { get; set; }

    /// <summary>Gets the value.</summary>
    [CadPart]
    [CadLabel(300, "VALUE")]
    [CadWhen("ContentType == 1")]
    public CadFieldData Value { get; } = new();

    /// <summary>Gets or sets the handle of the field or block record in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    [CadWhen("ContentType is 2 or 4")]
    public string ObjectHandle { get; set; } = "0";

    /// <summary>Gets the attributes of a block. The list is live. Group code 91.</summary>
    [CadRepeated(330, Count = 91)]
    internal IList<CellAttribute> AttributeList { get; } = new CheckedList<CellAttribute>("attribute_list");

    /// <summary>Gets or sets whether the content has a format of its own: 0 no, 1 yes. Group code 170.</summary>
    [CadShort(170)]
    [CadLabel(309, "CELLCONTENT_END")]
    [CadLabel(1, "FORMATTEDCELLCONTENT_BEGIN")]
    public short HasFormat { get; set; }

    /// <summary>Gets the format.</summary>
    [CadPart]
    [CadWhen("HasFormat != 0")]
    public CadContentFormat Format { get; } = new();
}
