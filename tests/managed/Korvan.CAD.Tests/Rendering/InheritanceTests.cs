using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Rendering.Scene;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What an entity takes from its layer, from the reference that shows its block, and through nested
/// ones.</summary>
public class InheritanceTests
{
    private const short ByLayer = -1;
    private const short ByBlock = -2;
    private const short Default = -3;

    [Theory]
    [InlineData(70, 13, 100, 0.7)] // its own
    [InlineData(ByLayer, 13, 100, 0.5)] // the layer of the reference stands in for layer 0
    [InlineData(ByBlock, 13, 100, 0.13)] // of the innermost reference
    [InlineData(ByBlock, ByLayer, 100, 0.5)]
    [InlineData(ByBlock, ByBlock, 100, 1)] // through both references
    [InlineData(ByBlock, ByBlock, ByLayer, 0.5)]
    [InlineData(ByBlock, ByBlock, ByBlock, 0.25)] // nobody says
    [InlineData(ByBlock, ByBlock, Default, 0.25)]
    [InlineData(Default, 13, 100, 0.25)]
    public void Line_weights_are_inherited(short own, short inner, short outer, double millimetres)
    {
        DisplayItem item = Draw(
            line => line.LineWeight = own, insert => insert.LineWeight = inner, insert => insert.LineWeight = outer);
        Assert.Equal(millimetres, item.LineWeight, 4);
    }

    [Theory]
    [InlineData(2, 1, 6, 2)]
    [InlineData(256, 1, 6, 3)] // green as the layer is
    [InlineData(0, 1, 6, 1)]
    [InlineData(0, 256, 6, 3)]
    [InlineData(0, 0, 6, 6)]
    [InlineData(0, 0, 256, 3)]
    [InlineData(0, 0, 0, 7)]
    public void Colours_are_inherited(short own, short inner, short outer, int index)
    {
        DisplayItem item = Draw(
            line => line.ColorId = own, insert => insert.ColorId = inner, insert => insert.ColorId = outer);
        Assert.Equal(AciPalette.Color(index, Rgba.White), item.Color);
    }

    [Theory]
    [InlineData("SHORT", "LONG", "LONG", 3.0)]
    [InlineData("BYLAYER", "SHORT", "LONG", 5.0)] // the layer's
    [InlineData("ByBlock", "SHORT", "LONG", 3.0)]
    [InlineData("ByBlock", "ByBlock", "LONG", 8.0)]
    [InlineData("ByBlock", "BYLAYER", "LONG", 5.0)]
    [InlineData("ByBlock", "ByBlock", "ByBlock", 0.0)] // continuous
    [InlineData("CONTINUOUS", "SHORT", "LONG", 0.0)]
    public void Line_types_are_inherited(string own, string inner, string outer, double dash)
    {
        DrawingList list = List(
            line =>
                line.LineTypeName = own, insert => insert.LineTypeName = inner, insert => insert.LineTypeName = outer);
        DisplayItem item = list.Items[0];
        Assert.Equal(dash, item.Dash < 0 ? 0 : list.DashOf(item)[0]);
    }

    private static DisplayItem Draw(
        Action<CadLine> own, Action<CadInsertObject> inner, Action<CadInsertObject> outer) =>
        List(own, inner, outer).Items[0];

    /// <summary>A line in a block, in another block, in the model; both references lie on a layer of their
    /// own.</summary>
    private static DrawingList List(Action<CadLine> own, Action<CadInsertObject> inner, Action<CadInsertObject> outer)
    {
        var line = new CadLine { SecondPoint = new Cad3DPoint(1000, 0, 0) };
        CadInsertObject first = TestPage.Insert("INNER", 0, 0, 256, "LAYER");
        CadInsertObject second = TestPage.Insert("OUTER", 0, 0, 256, "LAYER");
        own(line);
        inner(first);
        outer(second);
        CadImage drawing = TestPage.Drawing();
        CadLayerTable layer = TestPage.AddLayer(drawing, "LAYER", 3);
        (layer.LineWeight, layer.LineTypeName) = (50, "MIDDLE");
        foreach ((string name, double dash) in new[] { ("SHORT", 3.0), ("MIDDLE", 5.0), ("LONG", 8.0) })
        {
            var type = new CadLineTypeTableObject { Name = name };
            type.Pattern.AddRange([dash, -1]);
            drawing.LineTypes.Add(type);
        }

        TestPage.AddBlock(drawing, "INNER", line);
        TestPage.AddBlock(drawing, "OUTER", first);
        drawing.AddEntity(second);
        return SceneList.Build(drawing, new RenderStyle { AsPlotted = true });
    }
}
