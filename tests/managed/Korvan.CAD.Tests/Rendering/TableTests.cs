using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Tables;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.FileFormats.Cad;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Tables without a block, which are drawn from their cells.</summary>
public class TableTests
{
    // Rows of 4, 3 and 3 below (10, 100), columns of 20 and 30; the first row is one cell.
    private static object[] Table(int flags) =>
    [
        0, "ACAD_TABLE", 5, "A1", 100, "AcDbBlockReference", 2, "*T9", 10, 10, 20, 100, 30, 0, 100, "AcDbTable",
        342, "B1", 11, 1, 21, 0, 31, 0, 91, 3, 92, 2, 93, flags, 141, 4, 141, 3, 141, 3, 142, 20, 142, 30,
    ];

    [Fact]
    public void Cells_have_borders_fills_and_texts_by_their_row()
    {
        List<CadEntityBase> made = Create(
            0, [171, 1, 175, 2, 1, "Title"], [171, 1, 173, 1], [171, 1, 1, "Left"], [171, 1, 1, "Right"],
            [171, 1, 1, "a"], [171, 1, 91, 0x4 | 0x2, 283, 1, 63, 3, 1, "b"]);
        CadMText[] texts = [.. made.OfType<CadMText>()];
        Assert.Equal(["Title", "Left", "Right", "a", "b"], texts.Select(static text => text.Text));

        // Titles are in the middle of both columns, data at the upper left within margins of 1 and 0.5.
        Assert.Equal((25.0, -2.0, 5, 2.5), At(texts[0]));
        Assert.Equal((1.0, -7.5, 1, 1.5), At(texts[3]));
        Assert.Equal([48.0, 18, 28, 18, 28], texts.Select(static text => text.ReferenceRectangleWidth));

        CadSolid[] fills = [.. made.OfType<CadSolid>()];
        Assert.Equal([2, 3], fills.Select(static fill => fill.ColorId));
        Assert.Equal((20.0, -10.0, 50.0, -7.0), BoxOf(fills[1]));
        Assert.True(made.IndexOf(fills[1]) < made.FindIndex(static entity => entity is CadLine), "fills are below");

        // The line between columns ends below the title; all others go through.
        string[] lines = [.. made.OfType<CadLine>().Select(LineOf).Order(StringComparer.Ordinal)];
        Assert.Equal(
            ["0,-10 50,-10", "0,-4 50,-4", "0,-7 50,-7", "0,0 0,-10", "0,0 50,0", "20,-4 20,-10", "50,0 50,-10"],
            lines);
    }

    [Fact]
    public void Cells_and_tables_go_before_the_style_and_neighbours()
    {
        // The table states a height of data and hides the header; the second cell hides its left border, and the fifth
        // one states the weight of its top border.
        object[] before = [281, 1, 140, 2.25];
        List<CadEntityBase> made = Create(
            0x2 | 0x400000, before, [171, 1, 175, 2, 1, "T"], [171, 1, 173, 1], [171, 1, 1, "a"],
            [171, 1, 91, 0x20000, 288, 0, 1, "b"], [171, 1, 91, 0x400, 279, 70, 1, "c"],
            [171, 1, 145, Math.PI / 2, 1, "d"]);
        CadMText[] texts = [.. made.OfType<CadMText>()];
        Assert.Equal([2.5, 2.25, 2.25, 2.25, 2.25], texts.Select(static text => text.InitialTextHeight));
        string[] lines = [.. made.OfType<CadLine>().Select(LineOf)];
        Assert.Contains("20,-7 20,-10", lines);
        CadLine thick = made.OfType<CadLine>().Single(static line => line.LineWeight == 70);
        Assert.Equal("0,-7 20,-7", LineOf(thick));

        // Upwards, the upper left of a cell is at the right of the top of its text.
        Assert.Equal((21.0, -7.5, 3, 2.25), At(texts[4]));
        Assert.Equal(90, texts[4].TextRotation, 1e-9);
    }

    [Fact]
    public void Blocks_fit_their_cell_with_their_attributes_and_tables_may_go_upwards()
    {
        object[] block = [171, 2, 174, 1, 340, "C1", 144, 7, 179, 1, 331, "C3", 300, "value", 91, 1, 170, 5];
        object[] table =
        [
            0, "ACAD_TABLE", 5, "A1", 100, "AcDbBlockReference", 2, "*T9", 10, 10, 20, 100, 30, 0, 100, "AcDbTable",
            11, 1, 21, 0, 31, 0, 91, 1, 92, 1, 93, 4, 141, 12, 142, 40, 70, 1, .. block,
        ];
        CadImage drawing = DxfText.Load(
            DxfText.Header("AC1015")
            + DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "BLOCK_RECORD", 0, "BLOCK_RECORD", 5, "C1", 100,
                "AcDbSymbolTableRecord", 100, "AcDbBlockTableRecord", 2, "MARK", 0, "ENDTAB", 0, "ENDSEC")
            + DxfText.Tags(0, "SECTION", 2, "BLOCKS", 0, "BLOCK", 5, "C2", 100, "AcDbBlockBegin", 2, "MARK", 10, 0, 20,
                0,
                0, "LINE", 10, 2, 20, 2, 11, 6, 21, 4,
                0, "ATTDEF", 5, "C3", 100, "AcDbText", 10, 3, 20, 3, 40, 0.5, 1, "", 100, "AcDbAttributeDefinition",
                2, "TAG", 3, "", 70, 8, 0, "ENDBLK", 0, "ENDSEC")
            + DxfText.Entities(table) + DxfText.Tags(0, "EOF"));
        var sources = new TableSources(drawing.Drawing);
        CadInsertObject insert = TableGraphics.Create((CadTableEntity)drawing.Entities[0], sources)
            .OfType<CadInsertObject>().Single();

        // The margins of 0.06 leave 11.88 for a height of 2, in the middle of a cell that goes up from its origin.
        Assert.Equal(("MARK", 5.94), (insert.Name, Math.Round(insert.ScaleX, 6)));
        Assert.Equal((20 - (4 * 5.94), 6 - (3 * 5.94)), (insert.InsertionPoint.X, insert.InsertionPoint.Y));
        CadAttrib attribute = insert.Attributes[0];
        Assert.Equal(("value", 2.97), (attribute.DefaultValue, Math.Round(attribute.TextHeight, 6)));
        Assert.Equal(20 - 5.94, attribute.FirstAlignment.X, 1e-9);
        Assert.Contains(
            SceneList.Build(drawing).Items.ToArray(), static item => item.Kind == DisplayKind.Text);
    }

    [Fact]
    public void A_table_without_cells_is_named()
    {
        DxfImage drawing = DxfText.Load(DxfText.Drawing(Table(0)));
        Assert.Equal(1, SceneList.Build(drawing).Skipped["ACAD_TABLE without cells"]);
    }

    /// <summary>The blocks that another program made agree with what the cells give.</summary>
    [DrawingTheory]
    [InlineData("lwg__example_2018.dxf")]
    [InlineData("lwg__example_2007.dxf")]
    [InlineData("lwg__example_2000.dxf")]
    public void Cells_agree_with_the_blocks_of_other_programs(string name)
    {
        using var drawing = (CadImage)Image.Load(SharedDrawings.Dxf(name));
        CadTableEntity table = drawing.Entities.OfType<CadTableEntity>().Single();
        drawing.Entities.Clear();
        drawing.Entities.Add(table);
        DrawingList block = SceneList.Build(drawing);
        string extents = ExtentsOf(drawing);
        table.Name = "";
        Assert.Equal(extents, ExtentsOf(drawing));
        DrawingList cells = SceneList.Build(drawing);
        Assert.Empty(cells.Skipped);
        Assert.Equal(TextsOf(block), TextsOf(cells));
        Assert.Equal(SceneList.Area(block), SceneList.Area(cells), 1e-6);
        SceneList.AssertBox(cells, block.Bounds.MinX, block.Bounds.MinY, block.Bounds.MaxX, block.Bounds.MaxY, 1e-6);

        // Releases without tables have a block of the cells.
        foreach (DxfOutputVersion target in new[] { DxfOutputVersion.R2000, DxfOutputVersion.R12 })
        {
            DrawingList old = SceneList.Build(ReleaseTests.Converted((DxfImage)drawing, target).Image);
            Assert.Equal(TextsOf(block).Length, TextsOf(old).Length);
            SceneList.AssertBox(old, block.Bounds.MinX, block.Bounds.MinY, block.Bounds.MaxX, block.Bounds.MaxY, 1e-6);
        }
    }

    private static string ExtentsOf(CadImage drawing)
    {
        (Cad3DPoint min, Cad3DPoint max) = DrawingExtents.OfModel(drawing.Drawing, null);
        return FormattableString.Invariant($"{min.X:F6} {min.Y:F6} {max.X:F6} {max.Y:F6}");
    }

    private static string[] TextsOf(DrawingList list) =>
        [.. list.Items.ToArray().Where(static item => item.Kind == DisplayKind.Text)
            .Select(item => $"{list.TextOf(item).Text} {list.TextOf(item).Matrix}")];

    private static List<CadEntityBase> Create(int flags, params object[][] parts)
    {
        object[] cells = [.. parts.SelectMany(static part => part)];
        DxfImage drawing = DxfText.Load(DxfText.Drawing([.. Table(flags), .. cells]));
        var style = new CadTableStyle { ObjectHandle = "B1", HorizontalMargin = 1, VerticalMargin = 0.5 };
        style.Cells.Add(new CadTableStyleCell { TextHeight = 1.5, Alignment = 1 });
        style.Cells.Add(new CadTableStyleCell { TextHeight = 2.5, HasFill = true, FillColorId = 2 });
        style.Cells.Add(new CadTableStyleCell { TextHeight = 2 });
        drawing.Objects.Add(style);
        return TableGraphics.Create((CadTableEntity)drawing.Entities[0], new TableSources(drawing.Drawing));
    }

    private static (double X, double Y, int Attachment, double Height) At(CadMText text) => (
        Math.Round(text.InsertionPoint.X, 9), Math.Round(text.InsertionPoint.Y, 9), (int)text.AttachmentPoint,
        text.InitialTextHeight);

    private static (double, double, double, double) BoxOf(CadSolid fill) =>
        (fill.FirstPoint.X, fill.FirstPoint.Y, fill.FourthPoint.X, fill.FourthPoint.Y);

    private static string LineOf(CadLine line) => FormattableString.Invariant(
        $"{line.FirstPoint.X},{line.FirstPoint.Y} {line.SecondPoint.X},{line.SecondPoint.Y}");
}
