using System;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

public class EditingTests
{
    [Fact]
    public void A_new_drawing_keeps_what_is_put_into_it()
    {
        CadImage image = new();
        image.AddEntity(new CadLine
        {
            FirstPoint = new(0.1, 1e-17, -3),
            SecondPoint = new(1.0 / 3, 2, 3),
            LayerName = "Walls",
            ColorId = 1
        });
        image.AddEntity(new CadLwPolyline { Flag = CadLwPolylineFlag.Closed });
        CadLwPolyline outline = (CadLwPolyline)image.Entities[1];
        outline.Coordinates.AddRange([new(0, 0), new(4, 0), new(4, 3)]);
        outline.Bulges.AddRange([0, 0.5]);
        image.Header.LtScale = 2.5;

        CadImage again = DxfText.Reload(image);
        CadLine line = (CadLine)again.Entities[0];
        Assert.True(line.FirstPoint.Is(0.1, 1e-17, -3) && line.SecondPoint.Is(1.0 / 3, 2, 3));
        Assert.Equal(1, line.ColorId);
        Assert.NotNull(again.Layers.Find("walls"));
        Assert.Equal([0, 0.5, 0], Enumerable.Range(0, 3).Select(((CadLwPolyline)again.Entities[1]).BulgeAt));
        Assert.Equal(2.5, again.Header.LtScale);
    }

    [Fact]
    public void Objects_with_parts_are_written_with_their_ends_and_owners()
    {
        CadImage image = new();
        CadPolyline3D polyline = new();
        polyline.Vertices.Add(new Cad3DVertex { LocationPoint = new(1, 2, 3) });
        CadBlockEntity block = new() { Name = "Door", BasePoint = new(1, 1, 0) };
        block.Entities.Add(new CadCircle { Radius = 2 });
        image.BlockEntities.Add(block);
        CadInsertObject insert = new() { Name = "Door", ColumnCount = 3, ColumnSpacing = 5 };
        insert.Attributes
            .Add(new CadAttrib
            {
                DefinitionTagString = "NUMBER",
                DefaultValue = "17",
                VerticalAlignment = 2,
                LockPosition = true
            });
        CadHatch hatch = new();
        CadEdgeBoundaryPath edges = new();
        edges.Edges.Add(new CadBoundaryPathCircularArc { Radius = 3 });
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(edges));
        image.Entities.AddRange([polyline, insert, hatch]);

        CadImage again = DxfText.Reload(image);
        Assert.Equal(3, again.Entities.Count);
        CadPolyline3D line = (CadPolyline3D)again.Entities[0];
        Assert.True(line.Vertices.Single().LocationPoint.Is(1, 2, 3));
        Assert.Equal(line.ObjectHandle, line.Vertices[0].SoftOwner);
        CadAttrib attribute = ((CadInsertObject)again.Entities[1]).Attributes.Single();
        Assert.Equal(("17", 2, true), (attribute.DefaultValue, attribute.VerticalAlignment, attribute.LockPosition));
        Assert.IsType<CadCircle>(again.BlockEntities["door"].Entities.Single());
        Assert.IsType<CadEdgeBoundaryPath>(((CadHatch)again.Entities[2]).BoundaryPaths.Single().BoundaryPath);
        Assert.Equal(again.BlockRecords["Door"].ObjectHandle, again.BlockEntities["Door"].SoftOwner);
    }

    [Fact]
    public void Handles_stay_and_new_ones_follow_the_seed()
    {
        DxfImage image = DxfText.Load(
            DxfText.Tags(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015", 9, "$HANDSEED", 5, "100", 0, "ENDSEC")
            + DxfText.Entities(0, "POINT", 5, "2A", 100, "AcDbEntity", 8, "0", 100, "AcDbPoint", 10, 1, 20, 1)
            + DxfText.Tags(0, "EOF"));
        CadPoint added = new();
        image.AddEntity(added);
        DxfText.Save(image);
        Assert.Equal("2A", image.Entities[0].ObjectHandle);
        Assert.True(Convert.ToInt32(added.ObjectHandle, 16) >= 0x100);
        Assert.True(Convert.ToInt32(image.Header.HandSeed, 16) > Convert.ToInt32(added.ObjectHandle, 16));
    }

    [Fact]
    public void What_nobody_interprets_survives()
    {
        object[] tags =
        [
            0, "WIDGET", 5, "2A", 102, "{ACME", 70, 1, 102, "}", 330, "1F", 100, "AcDbEntity", 8, "0", 100,
                "AcmeWidget", 70, 4,
            100, "AcmeMore", 102, "{X", 1, " a ", 102, "}", 1, "b", 1001, "ACME", 1000, "note", 1040, "0.5",
            0, "LINE", 5, "2B", 100, "AcDbEntity", 8, "0", 92, 2, 310, "CAFE", 100, "AcDbLine", 10, 0, 20, 0, 11, 1, 21,
                1, 100, "AcmeLine", 70, 9,
        ];
        DxfImage image = DxfText.Load(DxfText.Drawing(tags));
        Assert.Equal(1, image.UnknownEntityCount);
        Assert.Equal("note", image.Entities[0].XdataContainer.Find("acme")!.Data[0].Value);
        string saved = DxfText.Save(image).Replace("\r\n", "\n").Replace("\n ", "\n").Replace("\n ", "\n");
        Assert.Contains(DxfText.Tags(100, "AcmeWidget", 70, 4, 100, "AcmeMore", 102, "{X", 1, "a ", 102, "}", 1, "b",
            1001, "ACME", 1000, "note", 1040, "0.5"), saved);
        Assert.Contains(DxfText.Tags(92, 2, 310, "CAFE", 100, "AcDbLine"), saved);
        Assert.Contains(DxfText.Tags(100, "AcmeLine", 70, 9), saved);
    }

    [Fact]
    public void Texts_are_listed_without_their_codes()
    {
        CadImage image = new();
        image.AddEntity(new CadText { DefaultValue = "%%c5 %%p0.1%%d" });
        image.AddEntity(new CadMText { Text = @"{\fArial|b1;Bold}\PNext \S1/2; \U+00B2" });
        image.AddEntity(new CadText { DefaultValue = " " });
        string[] texts = image.GetStrings();
        Assert.Equal(2, texts.Length);
        Assert.Contains("5 ±0.1°", texts[0]);
        Assert.StartsWith("Bold\nNext 1/2", texts[1]);
    }

    [Fact]
    public void Extents_follow_the_entities()
    {
        CadImage image = new();
        Assert.Equal((0, 0), (image.Width, image.Height));
        image.AddEntity(new CadArc { CenterPoint = new(10, 10, 0), Radius = 5, StartAngle = 0, EndAngle = 90 });
        CadLwPolyline halfCircle = new();
        halfCircle.Coordinates.AddRange([new(0, 0), new(2, 0)]);
        halfCircle.Bulges.Add(1);
        image.AddEntity(halfCircle);
        image.AddEntity(new CadCircle { CenterPoint = new(-5, 0, 0), Radius = 1, ExtrusionDirection = new(0, 0, -1) });
        Assert.Equal((0, -1), (image.MinPoint.X, image.MinPoint.Y));
        Assert.Equal((15, 15), (image.MaxPoint.X, image.MaxPoint.Y));
    }

    [Theory]
    [InlineData(DxfOutputVersion.R2000, "AC1015")]
    [InlineData(DxfOutputVersion.R2010, "AC1024")]
    [InlineData(DxfOutputVersion.R2018, "AC1032")]
    public void A_drawing_can_be_written_as_another_release(DxfOutputVersion version, string code)
    {
        CadImage image = new();
        image.AddEntity(new CadText { DefaultValue = "漢", ColorValue = 0x123456 });
        using MemoryStream stream = new();
        image.Save(stream, new DxfOptions { Version = version });
        CadImage again = DxfText.Load(stream.ToArray());
        Assert.Equal(code, again.Version.ToString());
        Assert.Equal("漢", ((CadText)again.Entities[0]).DefaultValue);
        Assert.Equal(version == DxfOutputVersion.R2000 ? -1 : 0x123456, again.Entities[0].ColorValue);
        Assert.Equal("AC1032", image.Version.ToString());
    }

    [Fact]
    public void Values_that_cannot_be_written_are_refused_and_leave_no_file()
    {
        string path = Path.Combine(Path.GetTempPath(), $"{Guid.NewGuid():N}.dxf");
        File.WriteAllText(path, "before");
        CadImage image = new();
        image.AddEntity(new CadCircle { Radius = double.NaN });
        ImageSaveException failure = Assert.Throws<ImageSaveException>(() => image.Save(path));
        Assert.Contains("CIRCLE", failure.Message);
        Assert.Equal("before", File.ReadAllText(path));
        Assert.Empty(Directory.GetFiles(Path.GetTempPath(), Path.GetFileName(path) + ".*.part"));
        Assert.Throws<ImageSaveException>(() => image.Save(path, false));
        Assert.Throws<ImageSaveException>(() => image.Save(Path.Combine(path, "below.dxf")));
        File.Delete(path);
    }

    [Fact]
    public void A_drawing_is_saved_over_the_stream_it_came_from()
    {
        using MemoryStream stream = new();
        new CadImage().Save(stream);
        stream.Position = 0;
        CadImage image = (CadImage)Image.Load(stream);
        image.AddEntity(new CadPoint());
        image.Save();
        Assert.Single(DxfText.Load(stream.ToArray()).Entities);
        Assert.Throws<ImageSaveException>(() => new CadImage().Save());
    }

    [Fact]
    public void Options_that_a_drawing_file_cannot_honour_are_named()
    {
        CadImage image = new();
        ImageSaveException failure = Assert.Throws<ImageSaveException>(() =>
            image.Save(new MemoryStream(), new DxfOptions { UserWatermarkText = "draft" }));
        Assert.Contains("DxfOptions.user_watermark_text", failure.Message);
        Assert.True(image.CanSave(new DxfOptions()) && image.CanSave(new PdfOptions()));
        image.Dispose();
        Assert.True(image.Disposed);
        Assert.Throws<ObjectDisposedException>(() => image.Save(new MemoryStream()));
    }

    [Fact]
    public void Names_are_found_after_renaming()
    {
        CadImage image = new();
        CadLayerTable layer = new() { Name = "A" };
        image.Layers.Add(layer);
        Assert.Same(layer, image.Layers["a"]);
        layer.Name = "B";
        Assert.Null(image.Layers.Find("A"));
        Assert.Same(layer, image.Layers["b"]);
        layer.IsOn = false;
        Assert.Equal(-7, layer.ColorId);
        Assert.Throws<CadException>(() => image.Layers["C"]);
    }

    [Fact]
    public void An_added_layout_gets_a_block_of_its_own()
    {
        CadImage image = new();
        image.Layouts.Add(new CadLayout { LayoutName = "Details", TabOrder = 2 });
        CadImage again = DxfText.Reload(image);
        again.GetLayoutEntities("Details").Add(new CadPoint());
        Assert.Single(DxfText.Reload(again).GetLayoutEntities("Details"));
        Assert.Empty(again.PaperSpaceEntities);
    }
}
