using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
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

    private static CadMLeader Leader(bool isFramed)
    {
        var leader = new CadMLeader();
        leader.Style.IsTextFrameEnabled = isFramed;
        leader.ContextData.HasText = true;
        leader.ContextData.Text = "Abg";
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
