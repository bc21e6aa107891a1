using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The format of table cells.</summary>
[CadSequence]
[CadLabel(1, "TABLEFORMAT_BEGIN")]
[CadEnd(309, "TABLEFORMAT_END")]
[CadBits(
    "BL FormatType", "BS HasData", "if HasData != 0: BL OverrideFlags", "if HasData != 0: BL MergeFlags",
    "if HasData != 0: TC BackgroundColorId BackgroundColorValue BackgroundColorName",
    "if HasData != 0: BL ContentLayout", "if HasData != 0: Part ContentFormat", "if HasData != 0: Part Margin",
    "if HasData != 0: Part[BL] Borders")]
public partial class CadTableFormat
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTableFormat()
    {
    }

    /// <summary>Gets or sets what is formatted: 1 a cell, 2 a row, 3 a column, 4 the data of a table, 5 the cells of a
    /// style. Group code 90.</summary>
    [CadInt(90)]
    public int FormatType { get; set; } = 5;

    /// <summary>Gets or sets whether there is a format: 0 no, 1 yes. Group code 170.</summary>
    [CadShort(170)]
    public short HasData { get; set; } = 1;

    /// <summary>Gets or sets which properties go before those of the style, a bit for each. Group code 91.</summary>
    [CadInt(91)]
    [CadWhen("HasData != 0")]
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets flags of merged cells. Group code 92.</summary>
    [CadInt(92)]
    [CadWhen("HasData != 0")]
    public int MergeFlags { get; set; }

    /// <summary>Gets or sets the index of the colour of the background; 257 for none. Group code 62.</summary>
    [CadColor(62)]
    [CadWhen("HasData != 0")]
    public short BackgroundColorId { get; set; } = 257;

    /// <summary>Gets or sets the colour of the background as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    [CadWhen("HasData != 0")]
    public int BackgroundColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour of the background in its book; empty for none. Group code
    /// 430.</summary>
    [CadString(430, Optional = true)]
    [CadWhen("HasData != 0")]
    public string BackgroundColorName { get; set; } = "";

    /// <summary>Gets or sets the order of contents in a cell: 1 a row, 2 stacked horizontally, 4 stacked vertically.
    /// Group code 93.</summary>
    [CadInt(93)]
    [CadWhen("HasData != 0")]
    public int ContentLayout { get; set; } = 1;

    /// <summary>Gets the format of the content.</summary>
    [CadPart]
    [CadWhen("HasData != 0")]
    public CadContentFormat ContentFormat { get; } = new();

    /// <summary>Gets the margins.</summary>
    [CadPart]
    [CadWhen("HasData != 0")]
    public CadMargin Margin { get; } = new();

    /// <summary>Gets the borders. The list is live. Group code 94.</summary>
    [CadRepeated(95, Count = 94)]
    [CadWhen("HasData != 0")]
    public IList<CadGridFormat> Borders { get; } = new CheckedList<CadGridFormat>("borders");
}
