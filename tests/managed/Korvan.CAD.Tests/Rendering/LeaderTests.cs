using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Parts of multileaders that their flags switch.</summary>
public class LeaderTests
{
    [Fact]
    public void Frames_enclose_the_text_at_the_landing_gap()
    {
        DrawingList text = Build(Leader(isFramed: false));
        DrawingList framed = Build(Leader(isFramed: true));
        Assert.Equal(text.Items.Length + 1, framed.Items.Length);
        Assert.True(framed.Bounds.MinX <= text.Bounds.MinX - 2.9 && framed.Bounds.MaxX >= text.Bounds.MaxX + 2.9);
        Assert.True(framed.Bounds.MinY <= text.Bounds.MinY - 2.9 && framed.Bounds.MaxY >= text.Bounds.MaxY + 2.9);
    }

    [Theory]
    [InlineData(true, true, 1, 1)]
    [InlineData(true, false, 1, 0)]
    [InlineData(false, true, 1, 0)]
    [InlineData(true, true, 2, 0)] // splines end without one
    public void Landings_are_drawn_for_straight_leaders_that_have_them(
        bool landing, bool dogleg, short type, int expected)
    {
        CadMLeader leader = Leader(isFramed: false);
        (leader.Style.IsLandingEnabled, leader.Style.IsDoglegEnabled) = (landing, dogleg);
        leader.Style.LeaderType = type;
        leader.ContextData.LeaderNodes.Add(new CadMLeaderNode
        {
            LastLeaderLinePoint = new Cad3DPoint(-10, 0, 0),
            DoglegVector = new Cad3DPoint(1, 0, 0),
            DoglegLength = 8,
        });
        Assert.Equal(expected, Build(leader).Items.ToArray().Count(item => item.Kind == DisplayKind.Stroke));
    }

    [Theory]
    [InlineData(1, 5, 1, 0)]
    [InlineData(5, 1, 2, 0)] // the last line is underlined, from the end of the landing on
    [InlineData(5, 5, 2, 40)] // from the right
    public void Lines_under_the_text_are_those_of_its_side(short left, short right, int expected, double at)
    {
        CadMLeader leader = Leader(isFramed: false);
        (leader.ContextData.LeftAttachment, leader.ContextData.RightAttachment) = (left, right);
        leader.ContextData.LeaderNodes.Add(new CadMLeaderNode
        {
            LastLeaderLinePoint = new Cad3DPoint(at == 0 ? -10 : at, 0, 0),
            DoglegVector = new Cad3DPoint(at == 0 ? 1 : -1, 0, 0),
            DoglegLength = 8,
        });
        DrawingList list = Build(leader);
        DisplayItem[] lines = [.. list.Items.ToArray().Where(item => item.Kind == DisplayKind.Stroke)];
        Assert.Equal(expected, lines.Length);
        if (expected == 2)
        {
            Bounds2 text = Build(Leader(isFramed: false)).Bounds;
            double far = SceneList.PathOf(list, lines[1]).Current.X;
            Assert.Equal(at == 0 ? text.MaxX : text.MinX, far, 0.2);
        }
    }

    [Theory]
    [InlineData("", 1, 1)] // closed and filled: an area, and the line behind it
    [InlineData("_None", 0, 1)]
    [InlineData("_Origin", 0, 3)] // a circle with a tail
    [InlineData("Own", 1, 2)] // a block of the drawing, which has an area and a line
    public void Arrowheads_are_those_of_their_blocks(string name, int areas, int lines)
    {
        var leader = new CadLeader();
        var multi = new CadMLeader();
        var branch = new CadMLeaderNode { LastLeaderLinePoint = new Cad3DPoint(20, 0, 0) };
        var line = new CadMLeaderLine();
        line.Vertices.Add(new Cad3DPoint(0, 0, 0));
        branch.LeaderLines.Add(line);
        multi.ContextData.LeaderNodes.Add(branch);
        (multi.Style.IsDoglegEnabled, multi.Style.LeaderType) = (false, 1);
        leader.Coordinates.Add(new Cad3DPoint(0, 0, 0));
        leader.Coordinates.Add(new Cad3DPoint(20, 0, 0));
        foreach (CadEntityBase entity in new CadEntityBase[] { leader, multi })
        {
            CadImage drawing = TestPage.Drawing(entity);
            TestPage.AddBlock(drawing, "Own", TestPage.Square(0, 0, 1), new CadLine());
            var record = new CadBlockTableObject { Name = name, ObjectHandle = "E1" };
            drawing.BlockRecords.Add(record);
            multi.Style.ArrowheadHandle = line.ArrowheadHandle = record.ObjectHandle;
            foreach (CadDimensionStyleTable style in drawing.DimensionStyles)
            {
                style.Dimldrblk = record.ObjectHandle;
            }

            DisplayItem[] items = Build(drawing).Items.ToArray();
            Assert.Equal(areas, items.Count(item => item.Kind == DisplayKind.Fill));
            Assert.Equal(lines, items.Count(item => item.Kind == DisplayKind.Stroke));
        }
    }

    [Fact]
    public void Blocks_show_the_attributes_of_the_leader_at_their_definitions()
    {
        var leader = new CadMLeader();
        CadImage drawing = TestPage.Drawing(leader);
        var definition = new CadAttDef { ObjectHandle = "D1", FirstAlignment = new Cad3DPoint(2, 3, 0) };
        TestPage.AddBlock(drawing, "Balloon", definition, new CadAttDef { ObjectHandle = "D2" });
        var record = new CadBlockTableObject { Name = "Balloon", ObjectHandle = "E1" };
        drawing.BlockRecords.Add(record);
        (leader.ContextData.HasBlock, leader.ContextData.Block.BlockRecordHandle) = (true, record.ObjectHandle);
        leader.ContextData.Block.Location = new Cad3DPoint(100, 0, 0);
        leader.Style.BlockAttributes.Add(new MLeaderAttribute { DefinitionHandle = "D1", Value = "42" });
        DrawingList list = Build(drawing);
        DisplayItem shown = list.Items.ToArray().Single(static item => item.Kind == DisplayKind.Text);
        Assert.Equal("42", list.TextOf(shown).Text);
        Assert.InRange(list.Bounds.MinX, 102, 103);
    }

    [Theory]
    [InlineData(false, 255, 0, 0)]
    [InlineData(true, 255, 255, 255)] // the colour of the background
    public void Masks_are_filled_behind_the_text(bool asBackground, byte red, byte green, byte blue)
    {
        CadMLeader leader = Leader(isFramed: false);
        leader.ContextData.IsBackgroundMaskEnabled = true;
        leader.ContextData.IsBackgroundFillEnabled = asBackground;
        leader.ContextData.BackgroundColor = unchecked((int)0xC3000001);
        DisplayItem mask = Build(leader).Items[0];
        Assert.Equal((DisplayKind.Fill, new Rgba(red, green, blue)), (mask.Kind, mask.Color));
    }

    private static CadMLeader Leader(bool isFramed)
    {
        var leader = new CadMLeader();
        leader.Style.IsTextFrameEnabled = isFramed;
        leader.ContextData.HasText = true;
        leader.ContextData.Text = "AHE";
        leader.ContextData.LandingGap = 3;
        return leader;
    }

    private static DrawingList Build(CadMLeader leader) => Build(TestPage.Drawing(leader));

    private static DrawingList Build(CadImage drawing)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
    }
}
