using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <summary>A style of tables: margins, and the cells of data, titles and headers.</summary>
[CadSequence]
[CadBits(
    "-2007 T StyleName", "-2007 BS FlowDirection", "-2007 BS Flags", "-2007 BD HorizontalMargin",
    "-2007 BD VerticalMargin", "-2007 B IsTitleSuppressed", "-2007 B IsHeaderSuppressed", "-2007 ExchangeCells()",
    "2010+ ExchangeStyles()")]
[CadObject("TABLESTYLE", Subclass = "AcDbTableStyle")]
public partial class CadTableStyle : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTableStyle()
    {
    }

    /// <summary>Gets or sets the version of the data; -1 for none. Group code 280.</summary>
    [CadShort(280, Optional = true, Since = 2010)]
    public short Version { get; set; } = -1;

    /// <summary>Gets or sets the description, which is the name in most files. Group code 3.</summary>
    [CadString(3)]
    public string StyleName { get; set; } = "";

    /// <summary>Gets or sets the direction of the rows: 0 down, 1 up. Group code 70.</summary>
    [CadShort(70)]
    public short FlowDirection { get; set; }

    /// <summary>Gets or sets flags. Group code 71.</summary>
    [CadShort(71)]
    public short Flags { get; set; }

    /// <summary>Gets or sets the horizontal margin of cells, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double HorizontalMargin { get; set; } = 0.06;

    /// <summary>Gets or sets the vertical margin of cells, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    public double VerticalMargin { get; set; } = 0.06;

    /// <summary>Gets or sets whether the title is left out. Group code 280.</summary>
    [CadBool(280)]
    public bool IsTitleSuppressed { get; set; }

    /// <summary>Gets or sets whether the column headers are left out. Group code 281.</summary>
    [CadBool(281)]
    public bool IsHeaderSuppressed { get; set; }

    /// <summary>Gets the cells: data, title and header. The list is live. Group code 7.</summary>
    [CadRepeated(7)]
    public IList<CadTableStyleCell> Cells { get; } = new CheckedList<CadTableStyleCell>("cells");
}
