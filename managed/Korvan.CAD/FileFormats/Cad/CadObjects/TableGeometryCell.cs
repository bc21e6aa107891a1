using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The size of a table cell.</summary>
[CadSequence]
[CadBits("BL Flags", "BD Size.Width", "BD Size.Height", "H GeometryHandle", "Part[BL] Contents")]
internal sealed partial class TableGeometryCell
{
    /// <summary>Gets or sets flags. Group code 93.</summary>
    [CadInt(93)]
    public int Flags { get; set; }

    /// <summary>Gets or sets the width and height with the gaps. Group codes 40, 41.</summary>
    [CadSize(40, 41)]
    public CadSize Size { get; set; } = new();

    /// <summary>Gets or sets the handle of the table geometry. Group code 330.</summary>
    [CadHandle(330)]
    public string GeometryHandle { get; set; } = "0";

    /// <summary>Gets the places of the contents. The list is live. Group code 94.</summary>
    [CadRepeated(10, Count = 94)]
    public IList<CellContentGeometry> Contents { get; } = new CheckedList<CellContentGeometry>("contents");
}
