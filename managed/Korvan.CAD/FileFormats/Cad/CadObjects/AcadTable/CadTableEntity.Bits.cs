using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <content>The fields in drawing databases. Source: Open Design Specification for .dwg files, 5.4.1, section
/// 20.4.96.</content>
public partial class CadTableEntity
{
    private const int Standard = 38;

    // What goes before the style, in the order of the bits that announce it.
    private static readonly TableOverride[] TableOverrides =
    [
        new(0x1, 280, TableOverride.Flag), new(0x2, 281, TableOverride.Implied), new(0x4, 70, TableOverride.Short),
        new(0x8, 40, TableOverride.Number), new(0x10, 41, TableOverride.Number), new(0x20, 64, TableOverride.Color),
        new(0x40, 64, TableOverride.Color), new(0x80, 64, TableOverride.Color), new(0x100, 283, TableOverride.Flag),
        new(0x200, 283, TableOverride.Flag), new(0x400, 283, TableOverride.Flag), new(0x800, 63, TableOverride.Color),
        new(0x1000, 63, TableOverride.Color), new(0x2000, 63, TableOverride.Color),
        new(0x4000, 170, TableOverride.Short), new(0x8000, 170, TableOverride.Short),
        new(0x10000, 170, TableOverride.Short), new(0x20000, 7, TableOverride.Style),
        new(0x40000, 7, TableOverride.Style), new(0x80000, 7, TableOverride.Style),
        new(0x100000, 140, TableOverride.Number), new(0x200000, 140, TableOverride.Number),
        new(0x400000, 140, TableOverride.Number),
    ];

    // Top, inner horizontal, bottom, left, inner vertical and right borders of titles, headers and data.
    private static readonly int[] Borders = [4, 5, 6, 3, 8, 9];

    private static readonly TableOverride[] BorderColors = BorderOverrides(60, TableOverride.Color);
    private static readonly TableOverride[] BorderLineWeights = BorderOverrides(270, TableOverride.Short);
    private static readonly TableOverride[] BorderVisibilities = BorderOverrides(280, TableOverride.Short);

    /// <summary>Gets or sets the data of the table as releases from 2010 on have it, which is more than the cells
    /// tell; null where the table was not read from such a file.</summary>
    internal CadTableContent? Content { get; set; }

    /// <summary>Gets how many rows and columns files get. A table whose numbers state far more cells than it has, or
    /// less than none, has as many rows as its cells make.</summary>
    internal (int Rows, int Columns) WrittenSize
    {
        get
        {
            const int maxMissing = 1 << 16;
            int columns = Math.Max(NumberOfColumns, 0);
            int rows = Math.Max(NumberOfRows, 0);
            if ((long)rows * columns <= Cells.Count + maxMissing && Math.Max(rows, columns) <= maxMissing)
            {
                return (rows, columns);
            }

            columns = Math.Clamp(columns, 0, Cells.Count);
            return (columns == 0 ? 0 : (Cells.Count + columns - 1) / columns, columns);
        }
    }

    /// <summary>Gets the parts that the table is broken into.</summary>
    internal TableBreakData Breaks { get; private set; } = new();

    /// <summary>Returns the properties that go before those of the style, each set by its flags.</summary>
    internal TableProperties StatedProperties()
    {
        List<CadCodeValue> tags = [.. Overrides];
        return new TableProperties(
            StatedValue.Take(TableOverrides, OverrideFlags, tags),
            StatedValue.Take(BorderColors, BorderColorOverrideFlags, tags),
            StatedValue.Take(BorderLineWeights, BorderLineWeightOverrideFlags, tags),
            StatedValue.Take(BorderVisibilities, BorderVisibilityOverrideFlags, tags));
    }

    private static TableOverride[] BorderOverrides(int code, int kind)
    {
        const int rows = 3;
        TableOverride[] result = new TableOverride[rows * Borders.Length];
        for (int i = 0; i < result.Length; i++)
        {
            result[i] = new TableOverride(1 << i, code + Borders[i % Borders.Length], kind);
        }

        return result;
    }

    private void ExchangeOwn(BitExchange fields)
    {
        TableStyleHandle = fields.Handle(HandleRole.HardPointer, TableStyleHandle);
        TableFlags = fields.BitShort(TableFlags);
        fields.Point3(HorizontalDirection);
        (int rows, int columns) = WrittenSize;
        columns = fields.CountLong(columns);
        rows = fields.CountLong(rows);
        if (fields.IsReading)
        {
            (NumberOfRows, NumberOfColumns) = (rows, columns);
        }

        ExchangeSizes(fields, ColumnWidths, columns);
        ExchangeSizes(fields, RowHeights, rows);
        long count = (long)rows * columns;
        int cells = fields.Verify(count <= int.MaxValue ? (int)count : int.MaxValue);
        for (int i = 0; i < cells; i++)
        {
            CadTableCell cell = fields.IsReading || i < Cells.Count ? fields.Item(Cells, i) : new CadTableCell();
            cell.ExchangeBits(fields);
        }

        List<CadCodeValue> given = [.. Overrides];
        List<CadCodeValue> found = [];
        OverrideFlags = TableOverride.ExchangeAll(fields, TableOverrides, OverrideFlags, given, found);
        BorderColorOverrideFlags =
            TableOverride.ExchangeAll(fields, BorderColors, BorderColorOverrideFlags, given, found);
        BorderLineWeightOverrideFlags =
            TableOverride.ExchangeAll(fields, BorderLineWeights, BorderLineWeightOverrideFlags, given, found);
        BorderVisibilityOverrideFlags =
            TableOverride.ExchangeAll(fields, BorderVisibilities, BorderVisibilityOverrideFlags, given, found);
        if (fields.IsReading)
        {
            Overrides.AddRange(found);
        }
    }

    private static void ExchangeSizes(BitExchange fields, List<double> sizes, int count)
    {
        fields.Resize(sizes, count);
        for (int i = 0; i < count; i++)
        {
            double value = fields.BitDouble(i < sizes.Count ? sizes[i] : 0);
            if (i < sizes.Count)
            {
                sizes[i] = value;
            }
        }
    }

    private void ExchangeContent(BitExchange fields)
    {
        const int listsRelease = 2013;
        fields.RawByte(0);
        fields.Handle(HandleRole.SoftPointer, 0);
        fields.BitLong(0);
        _ = fields.Release >= listsRelease ? fields.BitLong(0) : fields.Bit(true) ? 1 : 0;
        CadTableContent content = fields.IsReading ? new CadTableContent() : TableConversion.ToContent(this, fields);
        content.ExchangeBits(fields);
        fields.BitShort(Standard);
        fields.Point3(HorizontalDirection);
        Breaks.ExchangeBits(fields);
        if (fields.IsReading)
        {
            Content = content;
            TableConversion.ToCells(this, content, fields);
        }
    }
}

/// <summary>What a table states of its cells, by the flags of each set: six flags for the borders of titles, then six
/// for those of headers, then six for those of data.</summary>
internal sealed record TableProperties(
    Dictionary<int, StatedValue> Cells, Dictionary<int, StatedValue> BorderColors,
    Dictionary<int, StatedValue> BorderLineWeights, Dictionary<int, StatedValue> BorderVisibilities);
