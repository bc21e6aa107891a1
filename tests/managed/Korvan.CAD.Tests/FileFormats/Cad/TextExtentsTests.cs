using System;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

public class TextExtentsTests
{
    [Fact]
    public void A_text_takes_the_room_of_its_characters()
    {
        CadImage drawing = TestPage.Drawing(Text("HILL HILL HILL", 10));
        Assert.InRange(drawing.MaxPoint.X, 50, 110);
        Assert.Equal((0, 0, 10), (drawing.MinPoint.X, drawing.MinPoint.Y, Math.Round(drawing.MaxPoint.Y, 6)));

        CadText upwards = Text("HILL HILL HILL", 10);
        upwards.TextRotation = 90;
        CadImage rotated = TestPage.Drawing(upwards);
        Assert.Equal(drawing.MaxPoint.X, rotated.MaxPoint.Y, 6);
        Assert.Equal(-10, rotated.MinPoint.X, 6);

        CadText centred = Text("HILL HILL HILL", 10);
        (centred.HorizontalAlignment, centred.SecondAlignment) = (1, new Cad3DPoint(200, 5, 0));
        CadImage aligned = TestPage.Drawing(centred);
        Assert.Equal(200, (aligned.MinPoint.X + aligned.MaxPoint.X) / 2, 6);
        Assert.Equal(drawing.MaxPoint.X, aligned.MaxPoint.X - aligned.MinPoint.X, 6);
    }

    [Fact]
    public void Accents_and_what_is_below_the_baseline_count()
    {
        CadText line = Text("\u00C1g", 10);
        var paragraph = new CadMText
        {
            Text = line.DefaultValue,
            InitialTextHeight = 10,
            AttachmentPoint = CadAttachmentPoint.BottomLeft,
        };
        foreach (CadEntityBase text in (CadEntityBase[])[line, paragraph])
        {
            CadImage drawing = TestPage.Drawing(text);
            Assert.InRange(drawing.MaxPoint.Y - drawing.MinPoint.Y, 13, 20);
            using var engine = new TextEngine();
            DrawingScene scene = SceneReader.Read(drawing.Drawing);
            Bounds2 page = scene.Build(scene.Choose([])[0], new RenderStyle(), engine).Bounds;
            Assert.Equal(page.MinY, drawing.MinPoint.Y, 6);
            Assert.Equal(page.MaxY, drawing.MaxPoint.Y, 6);
        }
    }

    [Fact]
    public void Paragraphs_wrap_and_hang_from_their_attachment_point()
    {
        var text = new CadMText
        {
            Text = "one two three four",
            InitialTextHeight = 3,
            ReferenceRectangleWidth = 20,
            InsertionPoint = new(100, 100, 0)
        };
        text.AttachmentPoint = CadAttachmentPoint.TopLeft;
        CadImage drawing = TestPage.Drawing(text);
        Assert.InRange(drawing.MaxPoint.X, 110, 120.001);
        Assert.Equal(100, drawing.MinPoint.X, 6);
        Assert.InRange(drawing.MinPoint.Y, 80, 95);
    }

    [Fact]
    public void References_show_their_attributes_instead_of_definitions()
    {
        CadImage drawing = TestPage.Drawing(TestPage.Insert("B", 50, 0));
        TestPage.AddBlock(
            drawing, "B", TestPage.Square(0, 0, 1),
                new CadAttDef { DefinitionTagString = new string('W', 100), TextHeight = 10 });
        Assert.Equal(51, drawing.MaxPoint.X);
        var attribute =
            new CadAttrib { DefaultValue = "12345", TextHeight = 10, FirstAlignment = new Cad3DPoint(60, 0, 0) };
        ((CadInsertObject)drawing.Entities[0]).Attributes.Add(attribute);
        Assert.InRange(drawing.MaxPoint.X, 90, 110);
        attribute.AttFlags = 1; // hidden
        Assert.Equal(51, drawing.MaxPoint.X);
    }

    [Fact]
    public void Fonts_are_asked_only_for_texts_that_may_reach_past_everything_else()
    {
        int asked = 0;
        ITextMeasurer? Fonts()
        {
            asked++;
            return null;
        }

        CadText inside = Text("inside", 1);
        CadImage drawing = TestPage.Drawing(
            inside, new CadLine { FirstPoint = new(-100, -100, 0), SecondPoint = new(100, 100, 0) });
        DrawingExtents.OfModel(drawing.Drawing, Fonts);
        Assert.Equal(0, asked);
        ((CadText)drawing.Entities[0]).FirstAlignment = new Cad3DPoint(99, 0, 0);
        drawing.AddEntity(Text("another", 500));
        (Cad3DPoint min, Cad3DPoint max) = DrawingExtents.OfModel(drawing.Drawing, Fonts);
        Assert.Equal(1, asked);

        // Without fonts the box is one of average characters.
        Assert.Equal((-100, 7 * 500 * 0.9, 500), (min.X, max.X, max.Y));
    }

    private static CadText Text(string content, double height) => new() { DefaultValue = content, TextHeight = height };
}
