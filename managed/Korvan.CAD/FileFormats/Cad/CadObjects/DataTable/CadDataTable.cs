using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.DataTable;

/// <summary>A table of values: each column has values of one type.</summary>
[CadSequence]
[CadAlias("ACDBDATATABLE", "ACDBDATATABLE")]
[CadObject("DATATABLE", Subclass = "AcDbDataTable")]
[CadBits("BS Version", "ExchangeTable()")]
public partial class CadDataTable : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDataTable()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 70.</summary>
    [CadShort(70)]
    public short Version { get; set; } = 2;

    /// <summary>Gets or sets the name. Group code 1.</summary>
    public string TableName { get; set; } = "";

    /// <summary>Gets the columns, each with a value for every row. The list is live. Group codes 90, 91, 92.</summary>
    public IList<CadDataTableColumn> Columns { get; } = new CheckedList<CadDataTableColumn>("columns");

    /// <summary>Gets or sets the number of rows. Group code 91.</summary>
    public int RowCount { get; set; }

    partial void OnExchange(ObjectExchange fields)
    {
        int count = fields.Count(90, Columns.Count);
        RowCount = fields.Count(91, RowCount);
        TableName = fields.Text(1, TableName);
        for (int i = 0; i < count; i++)
        {
            fields.Item(Columns, i).Exchange(fields, RowCount);
        }
    }

    private void ExchangeTable(BitExchange fields)
    {
        int count = fields.CountLong(Columns.Count);
        RowCount = fields.CountLong(RowCount);
        TableName = fields.Text(TableName);
        for (int i = 0; i < count; i++)
        {
            fields.Item(Columns, i).Exchange(fields, RowCount);
        }
    }
}
