using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The places and sizes of the cells of a table and of their contents.</summary>
[CadSequence]
[CadObject("TABLEGEOMETRY", Subclass = "AcDbTableGeometry")]
[CadBits("BL RowCount", "BL ColumnCount", "Part[BL] CellList")]
public partial class CadTableGeometry : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTableGeometry()
    {
    }

    /// <summary>Gets or sets the number of rows. Group code 90.</summary>
    [CadInt(90)]
    public int RowCount { get; set; }

    /// <summary>Gets or sets the number of columns. Group code 91.</summary>
    [CadInt(91)]
    public int ColumnCount { get; set; }

    /// <summary>Gets the cells, row by row. The list is live. Group code 92.</summary>
    [CadRepeated(93, Count = 92)]
    internal IList<TableGeometryCell> CellList { get; } = new CheckedList<TableGeometryCell>("cell_list");

    /// <summary>Returns the size of a cell with its gaps, in drawing units.</summary>
    /// <param name="row">The index of the row, from 0.</param>
    /// <param name="column">The index of the column, from 0.</param>
    /// <returns>The size.</returns>
    /// <exception cref="System.ArgumentOutOfRangeException">The table has no such cell.</exception>
    public CadSize GetCellSize(int row, int column) => CellAt(row, column).Size;

    /// <summary>Returns the places of the contents of a cell.</summary>
    /// <param name="row">The index of the row, from 0.</param>
    /// <param name="column">The index of the column, from 0.</param>
    /// <returns>The places, one for each content.</returns>
    /// <exception cref="System.ArgumentOutOfRangeException">The table has no such cell.</exception>
    public CellContentGeometry[] GetContents(int row, int column) => [.. CellAt(row, column).Contents];

    private TableGeometryCell CellAt(int row, int column)
    {
        Verify.InRange(row, 0, RowCount - 1);
        Verify.InRange(column, 0, ColumnCount - 1);
        long index = ((long)row * ColumnCount) + column;
        return index < CellList.Count ? CellList[(int)index]
            : throw Verify.OutOfRange(nameof(row), row, $"The geometry has {CellList.Count} cells.");
    }
}
