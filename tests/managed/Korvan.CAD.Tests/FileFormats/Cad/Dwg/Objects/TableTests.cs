using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Tables, styles and texts that the releases have in different forms.</summary>
public class TableTests
{
    public static TheoryData<CadAcadVersion> Releases => ObjectRoundTripTests.Releases;

    [Theory]
    [MemberData(nameof(Releases))]
    public void TablesKeepTheirCells(CadAcadVersion version)
    {
        CadTableEntity table = Table();
        CadDrawing drawing = WithTable(table);

        CadTableEntity again = Again(drawing, version).ModelSpace.Entities.OfType<CadTableEntity>().Single();

        Assert.Equal((3, 2), (again.NumberOfRows, again.NumberOfColumns));
        Assert.Equal(table.ColumnWidths, again.ColumnWidths);
        Assert.Equal(table.RowHeights, again.RowHeights);
        Assert.Equal(table.Cells.Select(Shown), again.Cells.Select(Shown));
    }

    // Numbers that the cells contradict, and a field that is not in the drawing.
    [Theory]
    [MemberData(nameof(Releases))]
    public void ContradictoryTablesCanBeReadAgain(CadAcadVersion version)
    {
        foreach ((int rows, int columns, int writtenRows, int writtenColumns) in new[]
        {
            (-1, 2, 0, 2), (3, int.MinValue, 3, 0), (int.MaxValue, 2, 3, 2), (3, int.MaxValue, 1, 6), (1, 1, 1, 1),
            (5, 4, 5, 4),
        })
        {
            CadTableEntity table = Table();
            (table.NumberOfRows, table.NumberOfColumns) = (rows, columns);
            table.Cells[5].FieldHandle = "ABCDEF";

            (CadDrawing drawing, IReadOnlyList<string> notes) =
                ObjectRoundTripTests.WriteAndRead(WithTable(table), version);

            CadTableEntity again = drawing.ModelSpace.Entities.OfType<CadTableEntity>().Single();
            Assert.Equal((writtenRows, writtenColumns), (again.NumberOfRows, again.NumberOfColumns));
            Assert.Equal(writtenRows * writtenColumns, again.Cells.Count);
            Assert.Equal((rows, columns) != (writtenRows, writtenColumns), notes.Any(static note =>
                note.StartsWith("ACAD_TABLE ", StringComparison.Ordinal)));
        }
    }

    // A table that was read has more than its cells tell; a cell that is changed takes the place of its part of it.
    [Fact]
    public void ChangedCellsOfTablesAreWritten()
    {
        CadDrawing drawing = WithTable(Table());
        CadDrawing read = Again(drawing, CadAcadVersion.AC1032);
        CadTableEntity table = read.ModelSpace.Entities.OfType<CadTableEntity>().Single();
        table.GetCell(2, 1).Text = "changed";
        table.RowHeights[2] = 42;

        CadTableEntity again = Again(read, CadAcadVersion.AC1027).ModelSpace.Entities.OfType<CadTableEntity>().Single();

        Assert.Equal(("changed", "Title"), (again.GetCell(2, 1).Text, again.GetCell(0, 0).Text));
        Assert.Equal([11, 9, 42], again.RowHeights);
    }

    [Theory]
    [MemberData(nameof(Releases))]
    public void TableStylesKeepTheirCells(CadAcadVersion version)
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        CadTableStyle style = new() { StyleName = "Plain", HorizontalMargin = 0.25, VerticalMargin = 0.5 };
        for (int i = 0; i < 3; i++)
        {
            CadTableStyleCell cell = new() { TextHeight = i + 0.5, Alignment = (short)(i + 1), TextColorId = 3 };
            (cell.HasFill, cell.FillColorId) = (i == 1, 5);
            (cell.Borders[i].IsVisible, cell.Borders[i].LineWeight, cell.Borders[5].ColorId) = (false, 50, 6);
            style.Cells.Add(cell);
        }

        drawing.Objects.Add(style);

        CadTableStyle again = Again(drawing, version).Objects.OfType<CadTableStyle>().Single(
            static found => found.StyleName == "Plain");

        Assert.Equal((0.25, 0.5), (again.HorizontalMargin, again.VerticalMargin));
        Assert.Equal(style.Cells.Select(Shown), again.Cells.Select(Shown));
    }

    [Fact]
    public void ColumnsAndLinesOfTextsStay()
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        CadMText text = new() { Text = "one\\Ptwo", ReferenceRectangleWidth = 7 };
        KeptTags.Of(text).Embedded = Tags((101, "Embedded Object"), (71, "2"), (72, "2"), (44, "3"), (45, "0.5"),
            (73, "0"), (74, "1"), (46, "8"), (46, "9"));
        drawing.ModelSpace.Entities.Add(text);
        CadAttDef definition = new() { DefinitionTagString = "T", PromptString = "?" };
        KeptTags.Of(definition).Embedded = Tags((101, "Embedded Object"), (10, "1"), (20, "2"), (30, "0"),
            (40, "0.5"), (41, "9"), (71, "1"), (72, "5"), (1, "first\\Psecond"), (7, "STANDARD"));
        drawing.ModelSpace.Entities.Add(definition);

        List<CadEntityBase> again = [.. Again(drawing, CadAcadVersion.AC1032).ModelSpace.Entities];

        List<CadCodeValue> columns = again.OfType<CadMText>().Single().Embedded!;
        Assert.Equal(
            ["2", "2", "3", "0.5", "0", "1", "8", "9"],
            columns.Where(static tag => tag.Attribute is >= 44 and <= 46 or >= 71 and <= 74)
                .OrderBy(static tag => Order(tag.Attribute)).Select(static tag => tag.Value));
        CadAttDef lines = again.OfType<CadAttDef>().Single();
        Assert.Equal("first\\Psecond", lines.Embedded!.Single(static tag => tag.Attribute == 1).Value);
        Assert.Equal("first^Jsecond", lines.DefaultValue);
    }

    private static int Order(int code) => System.Array.IndexOf([71, 72, 44, 45, 73, 74, 46], code);

    private static CadDrawing WithTable(CadTableEntity table)
    {
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.BlockEntities.Add(new CadBlockEntity { Name = table.Name, NameAgain = table.Name });
        drawing.ModelSpace.Entities.Add(table);
        return drawing;
    }

    private static CadTableEntity Table()
    {
        CadTableEntity table = new() { Name = "*T1", NumberOfRows = 3, NumberOfColumns = 2, TableFlags = 22 };
        table.RowHeights.AddRange([11, 9, 9.5]);
        table.ColumnWidths.AddRange([60, 30]);
        table.Cells.Add(new CadTableCell { Text = "Title", MergedWidth = 2 });
        table.Cells.Add(new CadTableCell { IsMerged = 1 });
        CadTableCell styled = new() { Text = "Ж", Rotation = 1.5, OverrideFlags = 0x1 | 0x8 | 0x20 | 0x800 };
        styled.Content.AddRange(Tags((170, "7"), (64, "1"), (140, "2.5"), (275, "35")));
        table.Cells.Add(styled);
        table.Cells.Add(new CadTableCell());
        CadTableCell block = new() { CellType = 2 };
        block.Content.AddRange(Tags((340, "1F"), (144, "2"), (179, "1"), (331, "1E"), (300, "value")));
        table.Cells.Add(block);
        table.Cells.Add(new CadTableCell { Text = "last" });
        return table;
    }

    // Handles of what the drawing does not have become 0, so that they are not compared.
    private static string Shown(CadTableCell cell) =>
        $"{cell.CellType} {cell.Text} {cell.IsMerged} {cell.MergedWidth}x{cell.MergedHeight} {cell.Rotation} "
            + $"{cell.OverrideFlags:X} " + string.Join(' ', cell.Content.OrderBy(static tag => tag.Attribute)
                .Where(static tag => tag.Attribute is not (331 or 340))
                .Select(static tag => $"{tag.Attribute}={tag.Value}"));

    private static string Shown(CadTableStyleCell cell) =>
        $"{cell.TextHeight} {cell.Alignment} {cell.TextColorId} {cell.HasFill} {(cell.HasFill ? cell.FillColorId : 0)} "
            + string.Join(' ', cell.Borders.Select(static border =>
                $"{border.IsVisible},{border.LineWeight},{border.ColorId}"));

    private static List<CadCodeValue> Tags(params (int Code, string Value)[] tags) =>
        [.. tags.Select(static tag => new CadCodeValue(tag.Code, tag.Value))];

    private static CadDrawing Again(CadDrawing drawing, CadAcadVersion version) =>
        ObjectRoundTripTests.WriteAndRead(drawing, version).Drawing;
}
