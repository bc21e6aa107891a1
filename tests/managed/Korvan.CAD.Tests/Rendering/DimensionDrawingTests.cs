using System;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Dimensions that have no block of their own, as they appear.</summary>
public class DimensionDrawingTests
{
    [Fact]
    public void Parts_follow_the_colours_of_the_dimension_and_its_style()
    {
        var dimension = new CadAlignedDimension
        {
            SecondExtensionPoint = new Cad3DPoint(60, 0, 0),
            DefinitionPoint = new Cad3DPoint(60, 30, 0),
            StyleName = "Coloured",
            ColorId = 1,
        };
        CadImage drawing = TestPage.Drawing(dimension);
        drawing.DimensionStyles.Add(new CadDimensionStyleTable { Name = "Coloured", Dimclre = 5, Dimscale = 20 });
        DrawingList list = Build(drawing);
        Assert.Empty(list.Skipped);
        Assert.Equal(new Rgba(0, 0, 255), list.Items[0].Color);
        Assert.Equal(2, list.Items.ToArray().Count(item => item.Color == new Rgba(0, 0, 255)));
        Assert.Contains(
            list.Items.ToArray(), item => item.Kind == DisplayKind.Text && item.Color == new Rgba(255, 0, 0));
        using TestPage picture = TestPage.Of(drawing);
        Assert.True(picture[3, 30] is { R: 255, G: < 200, B: < 200 }, "within the arrowhead");
    }

    /// <summary>The block that another program made agrees with what the points and the style give.</summary>
    [DrawingTheory]
    [InlineData("lwg__example_2018.dxf", 10)]
    [InlineData("lwg__example_r14.dxf", 9)]
    [InlineData("ezdxf__uncommon.dxf", 16)]
    public void Figures_agree_with_the_blocks_of_other_programs(string name, int count)
    {
        using var drawing = (CadImage)Image.Load(SharedDrawings.Dxf(name));
        CadDimensionBase[] dimensions = [.. drawing.Entities.OfType<CadDimensionBase>()];
        int compared = 0;
        foreach (CadDimensionBase dimension in dimensions)
        {
            drawing.Entities.Clear();
            drawing.Entities.Add(dimension);
            DrawingList block = Build(drawing);
            if (block.Bounds.IsEmpty)
            {
                continue; // nothing to compare with
            }

            dimension.BlockName = "";
            DrawingList figure = Build(drawing);
            CadDimensionStyleTable style = drawing.DimensionStyles.Items.First(
                one => one.Name.Equals(dimension.StyleName, StringComparison.OrdinalIgnoreCase));
            AssertNear(block.Bounds, figure.Bounds, style.Dimtxt / 2, dimension);
            compared++;
        }

        Assert.Equal(count, compared);
    }

    private static void AssertNear(Bounds2 expected, Bounds2 actual, double tolerance, CadDimensionBase dimension)
    {
        double[] away =
        [
            expected.MinX - actual.MinX, expected.MinY - actual.MinY, expected.MaxX - actual.MaxX,
            expected.MaxY - actual.MaxY,
        ];
        Assert.True(
            away.All(distance => Math.Abs(distance) <= tolerance),
            $"{dimension} is away by {string.Join(" ", away)}, more than {tolerance}");
    }

    private static DrawingList Build(CadImage drawing)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return scene.Build(scene.Choose([])[0], new RenderStyle(), engine);
    }
}
