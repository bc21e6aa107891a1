using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Multileaders, tables and meshes, whose group codes depend on braces and on what stands before.</summary>
public class LeaderAndTableTests
{
    private static readonly object[] Context =
    [
        300, "CONTEXT_DATA{", 40, 1, 41, 2.5, 140, 3, 290, 1, 304, "Note", 12, 10, 22, 20, 32, 0, 171, 3, 296, 0,
        302, "LEADER{", 290, 1, 291, 1, 10, 8, 20, 20, 30, 0, 11, 1, 21, 0, 31, 0, 90, 0, 40, 2,
        304, "LEADER_LINE{", 10, 0, 20, 0, 30, 0, 10, 4, 20, 9, 30, 0, 91, 7, 305, "}", 303, "}", 301, "}",
    ];

    [Fact]
    public void Multileaders_are_read_through_their_braces()
    {
        CadMLeader leader = One<CadMLeader>([0, "MULTILEADER", 100, "AcDbMLeader", .. Context, 170, 2, 91, -1023410171]);
        CadMLeaderContextData data = leader.ContextData;
        Assert.Equal(("Note", 2.5, 3.0, 3), (data.Text, data.TextHeight, data.ArrowheadSize, data.TextAttachment));
        Assert.Equal((2, -1023410171), (leader.Style.LeaderType, leader.Style.LeaderColor));
        CadMLeaderNode node = Assert.Single(data.LeaderNodes);
        Assert.True(node.LastLeaderLinePoint.Is(8, 20, 0) && node.DoglegVector.Is(1, 0, 0));
        Assert.Equal(2, node.DoglegLength);
        CadMLeaderLine line = Assert.Single(node.LeaderLines);
        Assert.Equal([(0, 0), (4, 9)], line.Vertices.Select(point => (point.X, point.Y)));
        Assert.Equal((7, false), (line.Index, line.HasOwnProperties));
    }

    public static readonly TheoryData<string, object[]> BrokenBraces = new()
    {
        { "a line without its end: the next object ends all", [302, "LEADER{", 304, "LEADER_LINE{", 10, 1, 20, 2, 30, 3] },
        { "no end at all, not even of the context", [] },
        { "a subclass marker in the middle of a leader", [302, "LEADER{", 100, "AcDbOther", 40, 5] },
        { "extended data in the middle of a line", [302, "LEADER{", 304, "LEADER_LINE{", 1001, "ACAD", 1070, 1] },
    };

    [Theory]
    [MemberData(nameof(BrokenBraces))]
    public void Missing_ends_of_braces_end_with_the_object(string why, object[] inside)
    {
        CadImage image = DxfText.Load(DxfText.Drawing([
            0, "MULTILEADER", 5, "2A", 100, "AcDbMLeader", 300, "CONTEXT_DATA{", .. inside, 0, "POINT", 5, "2B", 10, 1, 20, 2, 30, 3]));
        Assert.True(image.Entities.Count == 2 && image.Entities[1] is CadPoint, why);
        Assert.Equal(2, DxfText.Reload(image).Entities.Count);
    }

    [Fact]
    public void Unknown_fields_stay_within_their_braces()
    {
        CadMLeader leader = One<CadMLeader>([0, "MULTILEADER", 100, "AcDbMLeader", 300, "CONTEXT_DATA{", 399, "in context",
            302, "LEADER{", 398, "in leader", 304, "LEADER_LINE{", 397, "in line", 305, "}", 303, "}", 301, "}", 396, "after"]);
        string[] saved = TagList.Of(leader);
        Assert.Equal(["397: in line", "305: }"], saved.SkipWhile(tag => !tag.StartsWith("397", StringComparison.Ordinal)).Take(2));
        Assert.Equal(["398: in leader", "303: }"], saved.SkipWhile(tag => !tag.StartsWith("398", StringComparison.Ordinal)).Take(2));
        Assert.Equal(["399: in context", "301: }"], saved.SkipWhile(tag => !tag.StartsWith("399", StringComparison.Ordinal)).Take(2));
        Assert.Equal("396: after", saved[^1]);
        Assert.Equal(saved, TagList.Of(leader.Clone()));
    }

    [Fact]
    public void Breaks_and_own_properties_of_leader_lines_are_kept()
    {
        CadMLeader leader = One<CadMLeader>([0, "MULTILEADER", 100, "AcDbMLeader", 300, "CONTEXT_DATA{", 296, 1, 341, "1F", 46, 0.5, 302, "LEADER{",
            12, 1, 22, 2, 32, 3, 13, 4, 23, 5, 33, 6, 304, "LEADER_LINE{", 90, 2, 11, 1, 21, 2, 31, 3, 12, 4, 22, 5, 32, 6,
            91, 1, 170, 2, 92, 5, 171, 25, 40, 9, 341, "2F", 93, 3, 305, "}", 303, "}", 301, "}", 94, 3, 345, "3F", 330, "4F", 177, 1, 44, 2, 302, "value"]);
        CadMLeaderNode node = Assert.Single(leader.ContextData.LeaderNodes);
        Assert.True(node.BreakStartPoints[0].Is(1, 2, 3) && node.BreakEndPoints[0].Is(4, 5, 6));
        CadMLeaderLine line = Assert.Single(node.LeaderLines);
        Assert.True(line.Breaks[0].Start.Is(1, 2, 3) && line.Breaks[0].End.Is(4, 5, 6) && line.Breaks[0].Segment == 2);
        Assert.Equal((true, 2, 25, 9.0, "2F"), (line.HasOwnProperties, line.LeaderType, line.LineWeight, line.ArrowheadSize, line.ArrowheadHandle));
        Assert.Equal((true, "1F", 0.5), (leader.ContextData.HasBlock, leader.ContextData.Block.BlockRecordHandle, leader.ContextData.Block.Rotation));
        Assert.Equal((3, "3F"), (leader.Style.Arrowheads[0].LineIndex, leader.Style.Arrowheads[0].BlockHandle));
        Assert.Equal(("4F", "value"), (leader.Style.BlockAttributes[0].DefinitionHandle, leader.Style.BlockAttributes[0].Value));
        CadMLeader again = (CadMLeader)leader.Clone();
        Assert.Equal(TagList.Of(leader), TagList.Of(again));
        Assert.NotSame(line, again.ContextData.LeaderNodes[0].LeaderLines[0]);
    }

    private static readonly object[] TableStart =
    [
        0, "ACAD_TABLE", 100, "AcDbBlockReference", 2, "*T1", 10, 5, 20, 6, 30, 0, 100, "AcDbTable", 11, 1, 21, 0, 31, 0, 91, 1, 92, 2, 141, 9, 142, 20, 142, 30,
    ];

    [Fact]
    public void Cells_are_found_by_row_and_column()
    {
        CadTableEntity table = One<CadTableEntity>([.. TableStart, 40, 0.5, 171, 1, 175, 2, 145, 0, 1, "first", 171, 2, 340, "1F", 144, 2]);
        Assert.Equal(("*T1", 5.0, 9.0), (table.Name, table.InsertionPoint.X, table.RowHeights[0]));
        Assert.Equal([20.0, 30.0], table.ColumnWidths);
        Assert.Equal(("first", 2, "first"), (table.GetCell(0, 0).Text, table.GetCell(0, 0).MergedWidth, table.GetCell(0, 0).FormattedText));
        Assert.Equal((2, "1F"), (table.GetCell(0, 1).CellType, table.GetCell(0, 1).BlockRecordHandle));
        Assert.Throws<ArgumentOutOfRangeException>(() => table.GetCell(1, 0));
        Assert.Throws<ArgumentOutOfRangeException>(() => table.GetCell(0, -1));
        table.Cells.RemoveAt(1);
        Assert.Throws<ArgumentOutOfRangeException>(() => table.GetCell(0, 1)); // fewer cells than rows and columns say
        Assert.Equal("40", Assert.Single(table.Overrides).Attribute.ToString());
    }

    [Fact]
    public void Values_of_cells_keep_their_type_and_long_texts_their_length()
    {
        string text = new('x', 600);
        CadTableEntity table = One<CadTableEntity>([.. TableStart,
            171, 1, 92, 0, 301, "CELL_VALUE", 93, 2, 90, 2, 140, 2.5, 94, 1, 300, "%lu2", 302, "2.50", 304, "ACVALUE_END",
            171, 1, 92, 0, 301, "CELL_VALUE", 93, 6, 90, 4, 2, text[..250], 2, text[250..500], 1, text[500..], 94, 0, 300, "", 302, "", 304, "ACVALUE_END"]);
        Assert.Equal((2, 1, "%lu2", "2.50", ""), (table.Cells[0].ValueType, table.Cells[0].ValueUnit, table.Cells[0].ValueFormat, table.Cells[0].FormattedText,
            table.Cells[0].Text));
        Assert.Equal(text, table.Cells[1].Text);
        string[] saved = TagList.Of(table);
        Assert.Contains("140: 2.5", saved);
        Assert.Equal(3, saved.Count(tag => tag.EndsWith("xxx", StringComparison.Ordinal)));
        table.Cells[0].Text = "now a text";
        saved = TagList.Of(table);
        Assert.DoesNotContain("140: 2.5", saved);
        Assert.Contains("302: now a text", saved);
        Assert.Equal(saved, TagList.Of(table.Clone()));
    }

    [Fact]
    public void Meshes_tell_faces_edges_and_creases_apart()
    {
        CadMesh mesh = One<CadMesh>([0, "MESH", 100, "AcDbSubDMesh", 71, 2, 72, 1, 91, 3, 92, 3, 10, 0, 20, 0, 30, 0, 10, 4, 20, 0, 30, 0, 10, 0, 20, 3, 30, 0,
            93, 4, 90, 3, 90, 0, 90, 1, 90, 2, 94, 1, 90, 0, 90, 1, 95, 1, 140, -1, 90, 1, 91, 5, 92, 1, 90, 0]);
        Assert.Equal((1, 3, 3), (mesh.BlendCrease, mesh.SubdivisionLevel, mesh.Vertices.Count));
        Assert.Equal([3, 0, 1, 2], mesh.FaceList);
        Assert.Equal([0, 1], mesh.EdgeList);
        Assert.Equal([-1.0], mesh.Creases);
        Assert.Equal([90, 91, 92, 90], mesh.Overrides.Select(tag => tag.Attribute));
        Assert.Equal(TagList.Of(mesh), TagList.Of(mesh.Clone()));
    }

    [Theory]
    [InlineData(93, 1000000, "faces")]
    [InlineData(94, 600, "edges: each needs two indices")]
    [InlineData(95, 1000000, "creases")]
    public void A_mesh_that_is_cut_off_ends_with_its_last_index(int code, int count, string why)
    {
        object[] padding = [.. Enumerable.Repeat<object[]>([999, new string('-', 60)], 70_000).SelectMany(tag => tag)];
        CadMesh mesh = One<CadMesh>([0, "MESH", 100, "AcDbSubDMesh", code, count, 90, 7, 140, 2, .. padding]);
        Assert.True(mesh.FaceList.Count + mesh.EdgeList.Count + mesh.Creases.Count <= 1, why);
    }

    private static T One<T>(IEnumerable<object> tags)
        where T : CadEntityBase => Assert.IsType<T>(Assert.Single(DxfText.Load(DxfText.Drawing([.. tags])).Entities));
}
