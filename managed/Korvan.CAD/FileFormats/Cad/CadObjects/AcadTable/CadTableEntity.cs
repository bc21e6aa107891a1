using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A table: rows and columns of cells. Its graphics stand in an anonymous block, which the table refers to
/// as a block reference does.</summary>
[CadObject("ACAD_TABLE", Subclass = "AcDbTable")]
[CadBits("base", "-2007 ExchangeOwn()", "2010+ ExchangeContent()")]
public partial class CadTableEntity : CadInsertObject
{
    /// <summary>Creates a table without cells.</summary>
    public CadTableEntity()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 280.</summary>
    [CadShort(280, Since = 2010)]
    public short DataVersion { get; set; }

    /// <summary>Gets or sets the handle of the table style in hexadecimal. Group code 342.</summary>
    [CadHandle(342, Optional = true)]
    public string TableStyleHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the record of the block with the graphics in hexadecimal. Group code
    /// 343.</summary>
    [CadHandle(343, Optional = true)]
    public string BlockRecordHandle { get; set; } = "";

    /// <summary>Gets or sets the direction of the rows, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint HorizontalDirection { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets flags of the table value. Group code 90.</summary>
    [CadInt(90)]
    public int TableFlags { get; set; }

    /// <summary>Gets or sets the number of rows. Group code 91.</summary>
    [CadInt(91)]
    public int NumberOfRows { get; set; }

    /// <summary>Gets or sets the number of columns. Group code 92.</summary>
    [CadInt(92)]
    public int NumberOfColumns { get; set; }

    /// <summary>Gets or sets which properties go before those of the style, a bit for each. Group code 93.</summary>
    [CadInt(93)]
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets which border colours go before those of the style, a bit for each. Group code
    /// 94.</summary>
    [CadInt(94)]
    public int BorderColorOverrideFlags { get; set; }

    /// <summary>Gets or sets which border line weights go before those of the style, a bit for each. Group code
    /// 95.</summary>
    [CadInt(95)]
    public int BorderLineWeightOverrideFlags { get; set; }

    /// <summary>Gets or sets which border visibilities go before those of the style, a bit for each. Group code
    /// 96.</summary>
    [CadInt(96)]
    public int BorderVisibilityOverrideFlags { get; set; }

    /// <summary>Gets the heights of the rows, in drawing units. The list is live. Group code 141.</summary>
    [CadList(141)]
    public List<double> RowHeights { get; } = [];

    /// <summary>Gets the widths of the columns, in drawing units. The list is live. Group code 142.</summary>
    [CadList(142)]
    public List<double> ColumnWidths { get; } = [];

    /// <summary>Gets the cells, row by row. The list is live. Group code 171.</summary>
    public IList<CadTableCell> Cells { get; } = new CheckedList<CadTableCell>("cells");

    /// <summary>Gets the properties of the table that go before those of the style, which stand before the
    /// cells.</summary>
    internal List<CadCodeValue> Overrides { get; } = [];

    /// <summary>Gives a cell.</summary>
    /// <param name="row">The index of the row, from 0.</param>
    /// <param name="column">The index of the column, from 0.</param>
    /// <returns>The cell.</returns>
    /// <exception cref="ArgumentOutOfRangeException">The table has no such row or column, or not that many
    /// cells.</exception>
    public CadTableCell GetCell(int row, int column)
    {
        Verify.InRange(row, 0, NumberOfRows - 1);
        Verify.InRange(column, 0, NumberOfColumns - 1);
        long index = ((long)row * NumberOfColumns) + column;
        return index < Cells.Count ? Cells[(int)index]
            : throw Verify.OutOfRange(nameof(row), row, $"The table has {Cells.Count} cells.");
    }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code == CadTableCell.Start)
        {
            Cells.Add(new CadTableCell());
        }

        taken = Cells.Count > 0 ? Cells[^1].ReadOrKeep(code, reader) : KeepOverride(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        fields.Tags(Overrides);
        fields.Parts(Cells, fields.Count(0, Cells.Count), static (cell, walk) => cell.Exchange(walk));
    }

    // The counted fields come first: what follows the widths of the columns are overrides.
    private bool KeepOverride(int code, FieldReader reader)
    {
        if (ColumnWidths.Count == 0 || code == 142)
        {
            return false;
        }

        Overrides.Add(reader.ToCodeValue());
        return true;
    }
}
