using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>The opacity of layers and the dots of line types.</summary>
public class StyleTests
{
    [Theory]
    [InlineData("0", 255)] // layer managers write it for "not set"
    [InlineData("33554687", 255)]
    [InlineData("33554560", 128)]
    [InlineData("33554432", 0)]
    public void A_layer_has_the_opacity_that_is_set(string value, int red)
    {
        CadImage drawing = TestPage.Drawing(TestPage.Square(10, 10, 50, layer: "Faint"));
        CadLayerTable layer = TestPage.AddLayer(drawing, "Faint", 1);
        var data = new CadXdata("AcCmTransparency");
        data.Data.Add(new CadCodeValue(1071, value));
        layer.XdataContainer.XdataEntities.Add(data);
        using TestPage picture = TestPage.Of(drawing);
        Assert.Equal(255 - red, picture[30, 30].G, 1.5);
    }

    [Fact]
    public void Dots_between_dashes_are_drawn()
    {
        CadImage drawing = TestPage.Drawing(
            new CadLine { FirstPoint = new(0, 50, 0), SecondPoint = new(100, 50, 0), LineTypeName = "DASHDOT" });
        CadLineTypeTableObject type = new() { Name = "DASHDOT" };
        type.Pattern.AddRange([12, -8, 0, -8]);
        drawing.LineTypes.Add(type);
        using TestPage picture = TestPage.Of(drawing);
        List<int> runs = [];
        bool wasDark = false;
        for (int x = 0; x < 100; x++)
        {
            bool isDark = picture[x, 50].R < 245;
            runs.AddRange(isDark && !wasDark ? [x] : []);
            wasDark = isDark;
        }

        // Each period of 28 has a dash and a dot.
        Assert.True(runs.Count >= 7, $"only {runs.Count} dashes and dots");
    }
}
