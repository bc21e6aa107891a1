using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>Converts between the cells of a table and the data that drawing databases of release 2010 and later have of
/// it. Source: Open Design Specification for .dwg files, 5.4.1, sections 20.4.96.2 and 20.4.97.</summary>
internal static class TableConversion
{
    private const int ValueContent = 1;
    private const int FieldContent = 2;
    private const int BlockContent = 4;
    private const int TitleStyle = 1;
    private const int HeaderStyle = 2;
    private const int DataStyle = 3;
    private const int CellFormat = 1;
    private const int RowFormat = 2;
    private const int ColumnFormat = 3;
    private const int TableFormat = 4;

    /// <summary>Gives a table the cells of its data.</summary>
    internal static void ToCells(CadTableEntity table, CadTableContent content, BitExchange fields)
    {
        const int blockAndDown = 0x16;
        table.TableStyleHandle = content.TableStyleHandle;
        table.TableFlags = blockAndDown;
        table.NumberOfRows = content.Rows.Count;
        table.NumberOfColumns = content.Columns.Count;
        table.ColumnWidths.AddRange(content.Columns.Select(static column => column.Width));
        table.RowHeights.AddRange(content.Rows.Select(static row => row.Height));
        foreach (CadTableCell cell in CellsOf(content, fields))
        {
            table.Cells.Add(cell);
        }
    }

    /// <summary>Returns the data of a table: that which it was read with, where its cells are those of the data, or
    /// with the cells that are not.</summary>
    internal static CadTableContent ToContent(CadTableEntity table, BitExchange fields)
    {
        (int rows, int columns) = table.WrittenSize;
        CadTableContent content = table.Content is { } read && read.Rows.Count == rows && read.Columns.Count == columns
            && read.Rows.All(row => row.Cells.Count == columns) ? read : Empty(rows, columns);
        content.TableStyleHandle = table.TableStyleHandle.Length > 0 ? table.TableStyleHandle : "0";
        for (int i = 0; i < content.Columns.Count && i < table.ColumnWidths.Count; i++)
        {
            content.Columns[i].Width = table.ColumnWidths[i];
        }

        for (int i = 0; i < content.Rows.Count && i < table.RowHeights.Count; i++)
        {
            content.Rows[i].Height = table.RowHeights[i];
        }

        List<CadTableCell> present = [.. CellsOf(content, fields)];
        for (int i = 0; i < present.Count && i < table.Cells.Count; i++)
        {
            if (!table.Cells[i].IsSame(present[i]))
            {
                Store(content.Rows[i / columns].Cells[i % columns], table.Cells[i], fields);
            }
        }

        StoreMerged(table, content);
        return content;
    }

    private static CadTableContent Empty(int rows, int columns)
    {
        CadTableContent content = new();
        SetFormat(content.Format, TableFormat);
        for (int i = 0; i < columns; i++)
        {
            TableDataColumn column = new();
            SetFormat(column.Format, ColumnFormat);
            content.Columns.Add(column);
        }

        for (int i = 0; i < rows; i++)
        {
            TableDataRow row = new() { StyleId = StyleOf(i) };
            SetFormat(row.Format, RowFormat);
            content.Rows.Add(row);
            for (int j = 0; j < columns; j++)
            {
                TableDataCell cell = new() { StyleId = StyleOf(i) };
                SetFormat(cell.Format, CellFormat);
                row.Cells.Add(cell);
            }
        }

        return content;
    }

    private static int StyleOf(int row) => row switch
    {
        0 => TitleStyle,
        1 => HeaderStyle,
        _ => DataStyle,
    };

    private static void SetFormat(CadTableFormat format, int type) => (format.FormatType, format.HasData) = (type, 0);

    private static IEnumerable<CadTableCell> CellsOf(CadTableContent content, BitExchange fields)
    {
        for (int row = 0; row < content.Rows.Count; row++)
        {
            for (int column = 0; column < content.Rows[row].Cells.Count; column++)
            {
                CadTableCell cell = CellOf(content.Rows[row].Cells[column], fields);
                SetMerged(cell, content.MergedCells, row, column);
                yield return cell;
            }
        }
    }

    private static void SetMerged(CadTableCell cell, IList<FormattedTableCellRange> ranges, int row, int column)
    {
        foreach (FormattedTableCellRange range in ranges)
        {
            if (row < range.TopRow || row > range.BottomRow || column < range.LeftColumn || column > range.RightColumn)
            {
                continue;
            }

            bool isFirst = row == range.TopRow && column == range.LeftColumn;
            cell.IsMerged = (short)(isFirst ? 0 : 1);
            cell.MergedWidth = (short)(isFirst ? range.RightColumn - range.LeftColumn + 1 : 1);
            cell.MergedHeight = (short)(isFirst ? range.BottomRow - range.TopRow + 1 : 1);
        }
    }

    private static CadTableCell CellOf(TableDataCell data, BitExchange fields)
    {
        CadTableCell cell = new();
        TableDataCellContent? content = data.Contents.FirstOrDefault();
        switch (content?.ContentType)
        {
            case ValueContent:
                cell.FromValue(content.Value);
                break;
            case FieldContent:
                cell.FieldHandle = content.ObjectHandle;
                break;
            case BlockContent:
                AddBlock(cell, content);
                break;
        }

        TableCellFormat.Read(cell, data.Format, content, fields);
        return cell;
    }

    private static void AddBlock(CadTableCell cell, TableDataCellContent content)
    {
        cell.CellType = CadTableCell.BlockCell;
        cell.Content.Add(new CadCodeValue(CadTableCell.BlockRecord, content.ObjectHandle));
        if (content.AttributeList.Count == 0)
        {
            return;
        }

        cell.Content.Add(TableOverride.Tag(CadTableCell.AttributeCount, content.AttributeList.Count));
        foreach (CellAttribute attribute in content.AttributeList)
        {
            cell.Content.Add(new CadCodeValue(CadTableCell.AttributeDefinition, attribute.DefinitionHandle));
            cell.Content.Add(new CadCodeValue(CadTableCell.AttributeText, attribute.Text));
        }
    }

    private static void Store(TableDataCell data, CadTableCell cell, BitExchange fields)
    {
        data.Contents.Clear();
        List<CadCodeValue> tags = [.. cell.Content];
        TableDataCellContent content = new() { ContentType = ContentOf(cell) };
        if (cell.CellType == CadTableCell.BlockCell)
        {
            content.ObjectHandle = TableOverride.Take(tags, CadTableCell.BlockRecord) ?? "0";
            while (TableOverride.Take(tags, CadTableCell.AttributeDefinition) is { } definition)
            {
                content.AttributeList.Add(new CellAttribute
                {
                    DefinitionHandle = definition,
                    Text = TableOverride.Take(tags, CadTableCell.AttributeText) ?? "",
                    Index = content.AttributeList.Count + 1,
                });
            }
        }
        else if (cell.FieldHandle.Length > 0)
        {
            content.ObjectHandle = cell.FieldHandle;
        }
        else
        {
            Copy(cell.ToValue(), content.Value);
        }

        if (content.ContentType != ValueContent || content.Value.ValueType != 0)
        {
            data.Contents.Add(content);
        }

        TableCellFormat.Write(cell, data.Format, content, fields);
    }

    private static int ContentOf(CadTableCell cell) => cell.CellType == CadTableCell.BlockCell ? BlockContent
        : cell.FieldHandle.Length > 0 ? FieldContent : ValueContent;

    private static void Copy(CadFieldData from, CadFieldData to)
    {
        (to.Flags, to.ValueType, to.Unit, to.Format, to.FormattedText) =
            (from.Flags, from.ValueType, from.Unit, from.Format, from.FormattedText);
        (to.Text, to.Integer, to.Number, to.Date, to.ObjectHandle) =
            (from.Text, from.Integer, from.Number, from.Date, from.ObjectHandle);
        (to.Point.X, to.Point.Y, to.Point.Z) = (from.Point.X, from.Point.Y, from.Point.Z);
    }

    private static void StoreMerged(CadTableEntity table, CadTableContent content)
    {
        content.MergedCells.Clear();
        int columns = table.WrittenSize.Columns;
        for (int i = 0; i < table.Cells.Count; i++)
        {
            CadTableCell cell = table.Cells[i];
            if (cell.IsMerged == 0 && (cell.MergedWidth > 1 || cell.MergedHeight > 1) && columns > 0)
            {
                (int row, int column) = (i / columns, i % columns);
                content.MergedCells.Add(new FormattedTableCellRange
                {
                    TopRow = row,
                    LeftColumn = column,
                    BottomRow = row + cell.MergedHeight - 1,
                    RightColumn = column + cell.MergedWidth - 1,
                });
            }
        }
    }
}
