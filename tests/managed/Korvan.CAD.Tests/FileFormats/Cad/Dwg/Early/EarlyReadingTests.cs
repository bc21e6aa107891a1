using System;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early.EarlyFile;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early;

/// <summary>What files of the releases before 13 hold arrives in the model.</summary>
public class EarlyReadingTests
{
    private const int Color = 1;
    private const int LineType = 2;
    private const int Elevation = 4;
    private const int Thickness = 8;
    private const int Handle = 32;
    private const int More = 64;
    private const int Followed = 128;

    [Fact]
    public void Entities_have_what_the_flags_of_their_records_announce()
    {
        EarlyFile file = Release11();
        file.Add("APPID", "ACAD", 0);
        byte[] xdata = Bytes(
            (byte)1, (short)0, (byte)0, (byte)2, "hi"u8.ToArray(), (byte)10, 1.0, 2.0, 3.0, (byte)70, (short)5);
        file.Entities.Add(file.Entity(
            3, Color | LineType | Elevation | Thickness | Handle | More, 1, 1, (byte)6, (short)xdata.Length, xdata,
            (byte)5, (short)32766, 2.5, 4.0, (byte)2, (byte)0x1A, (byte)0x2B, (short)1, 1.0, 2.0, 3.0, 0.0, 0.0, -1.0));
        file.Entities.Add(file.Entity(1, 0, 0, 0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0));
        file.Entities.Add(file.Entity(1, Elevation, 0, 0, 1.0, 2.0, 4.0, 5.0));
        CadDrawing drawing = Read(file.Build());

        var circle = Assert.IsType<CadCircle>(Assert.Single(drawing.PaperSpaceEntities));
        Assert.Equal(("WALLS", (short)5, "BYBLOCK", "1A2B", 4.0), (
            circle.LayerName, circle.ColorId, circle.LineTypeName, circle.ObjectHandle, circle.Thickness));
        Assert.Equal((1.0, 2.0, 2.5, 3.0, -1.0), (
            circle.CenterPoint.X, circle.CenterPoint.Y, circle.CenterPoint.Z, circle.Radius,
            circle.ExtrusionDirection.Z));
        CadXdata attached = Assert.Single(circle.XdataContainer.XdataEntities);
        Assert.Equal("ACAD", attached.RegisteredApplicationName);
        Assert.Equal(["1000: hi", "1010: 1", "1020: 2", "1030: 3", "1070: 5"], attached.Data.Select(
            static tag => tag.ToString()));
        Assert.Equal([(3.0, 6.0), (0.0, 0.0)], drawing.Entities.Cast<CadLine>().Select(
            static line => (line.FirstPoint.Z, line.SecondPoint.Z)));
        Assert.Equal((-3, "DASHED", 0.75, 2), (
            drawing.Layers[1].StoredColor, drawing.Layers[1].LineTypeName, drawing.LineTypes[1].PatternLength,
            drawing.LineTypes[1].Pattern.Count));
    }

    [Fact]
    public void Vertices_and_attributes_are_put_into_what_they_follow()
    {
        EarlyFile file = Release11();
        file.Add("BLOCK", "DOOR", 2, 0x40000000, (short)0, (short)0);
        file.BlockEntities.Add(file.Entity(12, 0, 0, 0, 7.0, 8.0));
        file.BlockEntities.Add(file.Entity(15, 0, 0, 2, 0.0, 0.0, 0.5, "A", "ask", "TAG", (byte)4, Math.PI / 2));
        file.BlockEntities.Add(file.Entity(13, 0, 0, 0));
        file.Entities.Add(file.Entity(14, Followed, 0, 4, (short)0, 1.0, 2.0, Math.PI));
        file.Entities.Add(file.Entity(16, 0, 0, 0, 1.0, 1.0, 0.5, "B", "TAG", (byte)0));
        file.Entities.Add(file.Entity(17, 0, 0, 0, 0));
        file.Entities.Add(file.Entity(19, Followed | Elevation, 0, 1, 3.0, (byte)1));
        file.Entities.Add(file.Entity(20, Elevation, 0, 4, 3.0, 0.0, 0.0, 0.5));
        file.Entities.Add(file.Entity(0x80 | 20, 0, 0, 0, 9.0, 9.0));
        file.Entities.Add(file.Entity(20, Elevation, 0, 0, 3.0, 1.0, 0.0));
        file.Entities.Add(file.Entity(17, 0, 1, 0, 0));
        CadDrawing drawing = Read(file.Build());

        CadBlockEntity block = drawing.BlockEntities.Find("DOOR")!;
        Assert.Equal((7.0, 8.0, (short)2), (block.BasePoint.X, block.BasePoint.Y, block.Flags));
        var definition = Assert.IsType<CadAttDef>(Assert.Single(block.Entities));
        Assert.Equal(("A", "ask", "TAG", (short)4, 90.0), (
            definition.DefaultValue, definition.PromptString, definition.DefinitionTagString, definition.AttFlags,
            definition.TextRotation));
        var insert = Assert.IsType<CadInsertObject>(drawing.Entities[0]);
        Assert.Equal(("DOOR", 180.0, "B"), (insert.Name, insert.RotationAngle, insert.Attributes[0].DefaultValue));
        var polyline = Assert.IsType<CadPolyline>(drawing.Entities[1]);
        Assert.Equal((true, 3.0, "WALLS", 2), (
            polyline.IsClosed, polyline.Elevation.Z, polyline.Seqend!.LayerName, polyline.Vertices.Count));
    }

    [Fact]
    public void Records_that_grew_are_read_where_they_went()
    {
        EarlyFile file = Release9();
        file.Entities.Add(file.Entity(2, 0, 0, 0, 1.0, 1.0));
        file.Entities.Add(Jump(unchecked((int)0x80000000)));
        file.Entities.Add(file.Entity(2, 0, 0, 0, 3.0, 3.0));
        file.Extras.Add(file.Entity(2, 0, 0, 0, 2.0, 2.0));
        file.Extras.Add(Jump(0));
        file.Build();
        file.Extras[1] = Jump(file.Places["entities"] + file.Entities[0].Length + 8);
        Assert.Equal([1.0, 2.0, 3.0], Read(file.Build()).Entities.Cast<CadPoint>().Select(
            static point => point.CenterPoint.X));

        file.Extras[1] = Jump(unchecked((int)0x80000000));
        var failure = Assert.Throws<ImageLoadException>(() => Read(file.Build()));
        Assert.Contains("extra entities: the record was read before", failure.Message);
        LoadOptions options = new() { IgnoreErrors = true };
        Assert.Equal(2, Read(file.Build(), options).Entities.Count);
        Assert.Single(options.Errors);
    }

    [Fact]
    public void The_first_release_has_layers_with_numbers_and_repeats_entities()
    {
        EarlyField[] fields = EarlyHeaderFields.Oldest;
        byte[] header = new byte[12 + fields.Sum(EarlyValues.LengthOf)];
        "AC1.40"u8.CopyTo(header);
        header[196] = 3;
        header[200 + (3 * 2)] = 5;
        byte[] data =
        [
            .. header,
            .. Bytes((short)12, (short)3, "TREE", 1.0, 2.0, (short)3, (short)3, 0.0, 0.0, 4.0, (short)13, (short)3),
            .. Bytes((short)5, (short)3, (short)2, (short)3, 1.0, 7.0, (short)-2, (short)3, 9.0, 9.0),
            .. Bytes((short)6, (short)3, (short)4, (short)2, 1.5, 2.5),
            .. Bytes((short)14, (short)3, "TREE", 5.0, 6.0, 2.0, 3.0, Math.PI / 6),
        ];
        BitConverter.GetBytes(data.Length).CopyTo(data, 0x24);
        CadDrawing drawing = Read(data);

        Assert.IsType<CadCircle>(Assert.Single(drawing.BlockEntities.Find("TREE")!.Entities));
        var grid = Assert.IsType<CadInsertObject>(drawing.Entities[0]);
        Assert.Equal(((short)4, (short)2, 1.5, 2.5), (
            grid.ColumnCount, grid.RowCount, grid.ColumnSpacing, grid.RowSpacing));
        Assert.IsType<CadPoint>(Assert.Single(drawing.BlockEntities.Find(grid.Name)!.Entities));
        var tree = Assert.IsType<CadInsertObject>(drawing.Entities[1]);
        Assert.Equal(("TREE", 2.0, 3.0, 30.0), (
            tree.Name, tree.ScaleX, tree.ScaleY, Math.Round(tree.RotationAngle, 9)));
        Assert.Equal(("3", "3", (short)5), (
            tree.LayerName, drawing.Header.CurrentLayer, drawing.Layers.Items.Find(
                static layer => layer.Name == "3")!.ColorId));
    }

    [DrawingTheory]
    [InlineData("lc__pre_r10_r140_entities", "Arc Circle Insert Insert Line Point Shape Solid Text Trace")]
    [InlineData("lc__pre_r10_r210_entities",
        "Arc AttDef Circle Insert Insert Insert Line Point Polyline Shape Solid Text Trace")]
    [InlineData("lwg__r2.10_block", "")]
    [InlineData("lwg__r2.6_dim", "Arc Circle Dimension Dimension Dimension Dimension Dimension Line Line")]
    [InlineData("lwg__r10_tmp_line", "Insert")]
    [InlineData("lwg__entities-2d",
        "Arc AttDef Circle Dimension Insert Insert Line Point Polyline Shape Solid Text Trace")]
    [InlineData("lwg__r11_entities-3d",
        "Arc AttDef Circle Dimension Face3D Insert Insert Line Point Polyline Shape Solid Text Trace")]
    public void Real_drawings_are_read_without_defects(string name, string types)
    {
        CadDrawing drawing = Read(System.IO.File.ReadAllBytes(SharedDrawings.Dwg(name + ".dwg")));
        Assert.Equal(types, string.Join(' ', drawing.Entities.Select(static one => $"{one.TypeName}").Order()));
        Assert.All(drawing.Entities.OfType<CadDimensionBase>(), dimension =>
            Assert.NotEmpty(drawing.BlockEntities.Find(dimension.BlockName)!.Entities));
    }

    private static CadDrawing Read(byte[] data, LoadOptions? options = null) =>
        EarlyDwgReader.Read(data, "early.dwg", options);
}
