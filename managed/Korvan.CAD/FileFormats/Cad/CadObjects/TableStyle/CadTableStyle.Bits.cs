using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <content>The fields in drawing databases of release 2010 and later, which have cell styles in place of the cells.
/// Source: Open Design Specification for .dwg files, 5.4.1, section 20.4.101.</content>
public partial class CadTableStyle
{
    private const int CellCount = 3;
    private const int DataCell = 0;
    private const int TitleCell = 1;
    private const int TitleStyle = 1;
    private const int HeaderStyle = 2;
    private const int DataStyle = 3;
    private const int TableStyleId = 4;
    private const int MergeAll = 0x8000;

    /// <summary>Gets the style of the table as a whole.</summary>
    internal CadCellStyle Whole { get; } = new() { Id = TableStyleId, StyleClass = 1, Name = "Table" };

    /// <summary>Gets the styles of data, titles and headers.</summary>
    internal List<CadCellStyle> CellStyles { get; } = [];

    private void ExchangeCells(BitExchange fields)
    {
        for (int i = 0; i < CellCount; i++)
        {
            CadTableStyleCell cell = fields.IsReading || i < Cells.Count ? fields.Item(Cells, i) : new();
            cell.ExchangeBits(fields);
        }
    }

    private void ExchangeStyles(BitExchange fields)
    {
        if (!fields.IsReading)
        {
            StoreStyles(fields);
        }

        int version = fields.RawByte(Version == -1 ? 0 : Version);
        Version = fields.IsReading ? (short)version : Version;
        StyleName = fields.Text(StyleName);
        int direction = fields.BitLong(FlowDirection);
        FlowDirection = fields.IsReading ? (short)(direction & 1) : FlowDirection;
        Flags = (short)fields.BitLong(Flags);
        fields.Handle(HandleRole.HardOwner, 0);
        Whole.ExchangeBits(fields);
        int count = fields.CountLong(CellStyles.Count);
        for (int i = 0; i < count; i++)
        {
            fields.BitLong(i == 0 ? DataStyle : i);
            fields.Item(CellStyles, i).ExchangeBits(fields);
        }

        if (fields.IsReading)
        {
            TakeStyles(fields);
        }
    }

    private void TakeStyles(BitExchange fields)
    {
        HorizontalMargin = Whole.Format.Margin.Values.Horizontal;
        VerticalMargin = Whole.Format.Margin.Values.Vertical;
        foreach (int id in (int[])[DataStyle, TitleStyle, HeaderStyle])
        {
            CadTableStyleCell cell = new();
            if (CellStyles.Find(style => style.Id == id) is { } style)
            {
                cell.Take(style.Format, fields);
            }

            Cells.Add(cell);
        }
    }

    private void StoreStyles(BitExchange fields)
    {
        int[] ids = [DataStyle, TitleStyle, HeaderStyle];
        for (int i = 0; i < CellCount; i++)
        {
            CadCellStyle? style = CellStyles.Find(known => known.Id == ids[i]);
            if (style is null)
            {
                style = NewStyle(i, ids[i]);
                CellStyles.Add(style);
            }

            if (i < Cells.Count)
            {
                Cells[i].Store(style.Format, fields);
            }

            SetMargins(style.Format);
        }

        SetMargins(Whole.Format);
    }

    private void SetMargins(CadTableFormat format)
    {
        const double spacing = 3;
        CadCellMargin margin = format.Margin.Values;
        format.Margin.OverrideFlags = 1;
        (margin.Horizontal, margin.Right) = (HorizontalMargin, HorizontalMargin);
        (margin.Vertical, margin.Bottom) = (VerticalMargin, VerticalMargin);
        if (margin.HorizontalSpacing == 0)
        {
            (margin.HorizontalSpacing, margin.VerticalSpacing) =
                (HorizontalMargin * spacing, VerticalMargin * spacing);
        }
    }

    private static CadCellStyle NewStyle(int index, int id)
    {
        const int dataClass = 1;
        const int labelClass = 2;
        CadCellStyle style = new()
        {
            Id = id,
            StyleClass = index == DataCell ? dataClass : labelClass,
            Name = index switch { DataCell => "_DATA", TitleCell => "_TITLE", _ => "_HEADER" },
        };
        style.Format.MergeFlags = index == TitleCell ? MergeAll : 0;
        return style;
    }
}
