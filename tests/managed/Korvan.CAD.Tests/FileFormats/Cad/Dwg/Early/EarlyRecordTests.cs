using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early.EarlyFile;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early;

/// <summary>The fields of table and entity records of the releases before 13.</summary>
public class EarlyRecordTests
{
    private const double Right = Math.PI / 2;

    [Fact]
    public void Records_of_tables_have_their_fields()
    {
        EarlyFile file = Release11();
        file.Add("STYLE", "ROMAN", 4, 0.0, 0.8, Right / 9, (byte)2, 3.5, Padded("romans.shx", 64), Padded("big", 64));
        file.Add("VIEW", "TOP", 1, 10.0, 1.0, 2.0, 20.0, 0.0, 0.0, 1.0, (short)0, 7.0, 8.0, 9.0, (short)3, 50.0, 0.5,
            -0.5, Right);
        file.Add("UCS", "FRONT", 0, 1.0, 2.0, 3.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0);
        file.Add("APPID", "ACAD", 0);
        file.Add("DIMSTYLE", "ISO", 0, [.. Enumerable.Range(1, 15).Select(static i => (object)(i / 4.0)),
            .. Enumerable.Range(1, 14).Select(static i => (object)(byte)(i % 2)), Padded("<> mm", 16), Padded("", 16),
            Padded("DOT", 33), Padded("", 33), Padded("", 32), (short)1, (short)2, (short)3, (byte)0, 0.09, 0.5]);
        CadDrawing drawing = Read(file);

        var style = Record<CadStyleTableObject>(drawing, "STYLE");
        Assert.Equal(("ROMAN", 0.8, 10.0, (short)2, 3.5, "romans.shx", "big"), (style.Name, style.WidthFactor,
            Math.Round(style.ObliqueAngle, 9), style.TextGenerationFlag, style.LastHeight, style.PrimaryFontName,
            style.BigFontName));
        var view = Record<CadViewTableObject>(drawing, "VIEW");
        Assert.Equal(("TOP", 10.0, 2.0, 20.0, 1.0, 9.0, 50.0, -0.5, 90.0, (short)3), (view.Name, view.ViewHeight,
            view.ViewCenter.Y, view.ViewWidth, view.ViewDirection.Z, view.TargetPoint.Z, view.LensLength,
            view.BackClippingPlane, view.TwistAngle, view.ViewMode));
        var ucs = Record<CadUcsTableObject>(drawing, "UCS");
        Assert.Equal(("FRONT", 3.0, 1.0, 1.0), (ucs.Name, ucs.Origin.Z, ucs.XDirection.X, ucs.YDirection.Z));
        var dimensions = Record<CadDimensionStyleTable>(drawing, "DIMSTYLE");
        Assert.Equal(("ISO", 0.25, 0.5, (short)1, (short)0, "<> mm", (short)3, 0.5), (dimensions.Name,
            dimensions.Dimscale, dimensions.Dimasz, dimensions.Dimtol, dimensions.Dimlim, dimensions.Dimpost,
            dimensions.Dimclrt, dimensions.Dimgap));
    }

    // Before release 10 records of views end earlier; a record that is longer than its fields is read as well.
    [Fact]
    public void Records_may_be_shorter_or_longer_than_their_fields()
    {
        EarlyFile file = Release9();
        file.Add("VIEW", "TOP", 0, 10.0, 1.0, 2.0, 20.0, 0.0, 0.0, 1.0, (short)0);
        file.Add("STYLE", "LONG", 0, 2.5, 1.0, 0.0, (byte)0, 2.5, Padded("txt", 64), Padded("", 64), new byte[9]);
        CadDrawing drawing = Read(file);
        Assert.Equal(20.0, Record<CadViewTableObject>(drawing, "VIEW").ViewWidth);
        Assert.Equal(("LONG", "txt"), (
            Record<CadStyleTableObject>(drawing, "STYLE").Name,
            Record<CadStyleTableObject>(drawing, "STYLE").PrimaryFontName));
    }

    [Fact]
    public void Erased_records_keep_their_index()
    {
        EarlyFile file = Release11();
        file.Add("LAYER", "", 128, (short)7, (short)0);
        file.Add("LAYER", "DOORS", 0, (short)4, (short)0);
        file.Entities.Add(file.Entity(2, 0, 3, 0, 1.0, 1.0, 0.0));
        CadDrawing drawing = Read(file);
        Assert.Equal("DOORS", drawing.Entities[0].LayerName);
        Assert.Equal(["0", "WALLS", "DOORS"], drawing.Layers.Items.Select(static layer => layer.Name));
    }

    [Fact]
    public void Texts_and_shapes_have_their_options()
    {
        EarlyFile file = WithStyles(Release11());
        file.Entities.Add(file.Entity(7, 4, 0, 0x1FF, 3.0, 1.0, 2.0, 0.5, "Größe", Right, 0.8, Right / 9, (byte)1,
            (byte)2, (byte)4, 5.0, 6.0, 0.0, 0.0, -1.0, (byte)3));
        file.Entities.Add(file.Entity(4, 0, 0, 0xF, 1.0, 2.0, 0.5, (byte)130, Right, (byte)1, 0.7, Right / 9));
        CadDrawing drawing = Read(file);
        var text = Assert.IsType<CadText>(drawing.Entities[0]);
        Assert.Equal((1.0, 3.0, 0.5, "Größe", 90.0, 0.8, 10.0, "SECOND"), (text.FirstAlignment.X, text.FirstAlignment.Z,
            text.TextHeight, text.DefaultValue, text.TextRotation, text.ScaleX, Math.Round(text.ObliqueAngle, 9),
            text.StyleType));
        Assert.Equal(((short)2, (short)4, 6.0, 3.0, (short)3), (text.TextGenerationFlags, text.HorizontalAlignment,
            text.SecondAlignment.Y, text.SecondAlignment.Z, text.VerticalAlignment));
        var shape = Assert.IsType<CadShape>(drawing.Entities[1]);
        Assert.Equal((2.0, 0.5, 90.0, 0.7, 10.0, 130, "SECOND"), (shape.InsertionPoint.Y, shape.Size,
            shape.RotationAngle, shape.ScaleX, Math.Round(shape.ObliqueAngle, 9), shape.ShapeNumber, shape.StyleName));
    }

    [Fact]
    public void Arcs_and_areas_have_directions_and_elevations()
    {
        EarlyFile file = Release11();
        file.Entities.Add(file.Entity(8, 4 | 8, 0, 1, 7.0, 2.0, 1.0, 2.0, 3.0, Right, 2 * Right, 0.0, 0.0, -1.0));
        file.Entities.Add(file.Entity(11, 4, 0, 0, 5.0, 0.0, 0.0, 1.0, 0.0, 0.0, 2.0, 1.0, 2.0));
        file.Entities.Add(file.Entity(9, 0, 0, 2, 0.0, 0.0, 1.0, 0.0, 0.0, 2.0, 1.0, 2.0, 4.0));
        CadDrawing drawing = Read(file);
        var arc = Assert.IsType<CadArc>(drawing.Entities[0]);
        Assert.Equal((7.0, 2.0, 3.0, 90.0, 180.0, -1.0), (arc.CenterPoint.Z, arc.Thickness, arc.Radius, arc.StartAngle,
            arc.EndAngle, arc.ExtrusionDirection.Z));
        var solid = Assert.IsType<CadSolid>(drawing.Entities[1]);
        Assert.Equal((5.0, 1.0, 2.0, 5.0), (
            solid.FirstPoint.Z, solid.SecondPoint.X, solid.FourthPoint.Y, solid.FourthPoint.Z));
        var trace = Assert.IsType<CadTrace>(drawing.Entities[2]);
        Assert.Equal((4.0, 4.0), (trace.FirstPoint.Z, trace.FourthPoint.Z));
    }

    [Fact]
    public void Block_references_have_their_options()
    {
        EarlyFile file = Release11();
        file.Add("BLOCK", "DOOR", 0, 0x40000000, (short)0, (short)0);
        file.BlockEntities.Add(file.Entity(12, 0, 0, 0, 0.0, 0.0));
        file.BlockEntities.Add(file.Entity(13, 0, 0, 0));
        file.Entities.Add(file.Entity(14, 0, 0, 0x1FF, (short)0, 1.0, 2.0, 3.0, 4.0, Right, 5.0, (short)6, (short)7,
            8.0, 9.0, 0.0, 0.0, -1.0));
        var insert = Assert.IsType<CadInsertObject>(Read(file).Entities[0]);
        Assert.Equal(("DOOR", 3.0, 4.0, 5.0, 90.0, (short)6, (short)7, 8.0, 9.0, -1.0), (insert.Name, insert.ScaleX,
            insert.ScaleY, insert.ScaleZ, insert.RotationAngle, insert.ColumnCount, insert.RowCount,
            insert.ColumnSpacing, insert.RowSpacing, insert.ExtrusionDirection.Z));
    }

    // Release 10 has points in space, which the option of earlier releases announced one by one.
    [Fact]
    public void Faces_have_the_points_of_their_release()
    {
        EarlyFile early = Release9();
        early.Entities.Add(early.Entity(21, 4, 0, 2, 9.0, 1.0, 2.0, 4.0, 5.0, 6.0));
        early.Entities.Add(early.Entity(22, 4, 0, 5, 9.0, 0.0, 0.0, 1.0, 1.0, 0.0, 1.0, 1.0, 2.0, 0.0, 1.0));
        CadDrawing drawing = Read(early);
        var line = Assert.IsType<CadLine>(drawing.Entities[0]);
        Assert.Equal((9.0, 6.0), (line.FirstPoint.Z, line.SecondPoint.Z));
        var face = Assert.IsType<Cad3DFace>(drawing.Entities[1]);
        Assert.Equal((1.0, 9.0, 2.0, 9.0), (
            face.FirstPoint.Z, face.SecondPoint.Z, face.ThirdPoint.Z, face.FourthPoint.Z));

        EarlyFile late = Release11();
        late.Entities.Add(late.Entity(22, 0, 0, 1, 0.0, 0.0, 1.0, 1.0, 0.0, 2.0, 1.0, 1.0, 3.0, 0.0, 1.0, 4.0,
            (short)5));
        face = Assert.IsType<Cad3DFace>(Read(late).Entities[0]);
        Assert.Equal((1.0, 2.0, 3.0, 4.0, (short)5), (face.FirstPoint.Z, face.SecondPoint.Z, face.ThirdPoint.Z,
            face.FourthPoint.Z, face.InvisibleEdges));
    }

    [Fact]
    public void Dimensions_and_viewports_have_their_fields()
    {
        EarlyFile file = Release11();
        file.Add("BLOCK", "*D", 1, 0x40000000, (short)0, (short)0);
        file.BlockEntities.Add(file.Entity(12, 0, 0, 0, 0.0, 0.0));
        file.BlockEntities.Add(file.Entity(13, 0, 0, 0));
        file.Add("DIMSTYLE", "ISO", 0, new byte[(15 * sizeof(double)) + 14 + 130]);
        file.Entities.Add(file.Entity(23, 0, 0, 0x8000 | 0x101E, (short)0, 1.0, 2.0, 3.0, 4.0, 5.0, (byte)1, "<>",
            6.0, 7.0, 8.0, 9.0, 10.0, 11.0, (short)0));
        file.Entities.Add(file.Entity(24, 64, 0, 0, (byte)4, (short)2, 1.0, 2.0, 0.0, 30.0, 20.0, (short)2));
        CadDrawing drawing = Read(file);
        var dimension = Assert.IsAssignableFrom<CadDimensionBase>(drawing.Entities[0]);
        Assert.Equal(("*D0", 3.0, 5.0, "<>", "ISO"), (dimension.BlockName, dimension.DefinitionPoint.Z,
            dimension.MiddleOfTextPoint.Y, dimension.Text, dimension.StyleName));
        var viewport = Assert.IsType<CadViewport>(Assert.Single(drawing.PaperSpaceEntities));
        Assert.Equal((2.0, 30.0, 20.0, (short)2), (
            viewport.CenterPoint.Y, viewport.Width, viewport.Height, viewport.ViewportId));
    }

    [Theory]
    [InlineData("AC1002", 74)]
    [InlineData("AC1003", 120)]
    [InlineData("AC1004", 129)]
    [InlineData("AC1006", 160)]
    [InlineData("AC1009", 205)]
    public void Variables_are_those_that_the_header_counts(string code, int count)
    {
        EarlyFile file = new(code, count);
        file.Build();
        byte[] data = file.Build();
        Put(data, file.Places["$LTSCALE"], 2.5);
        Put(data, file.Places["$DIMASZ"], 0.75);
        if (count > 122)
        {
            Put(data, file.Places["$CHAMFERA"], 0.125);
        }

        LoadOptions options = new() { IgnoreErrors = true };
        CadDrawing drawing = EarlyDwgReader.Read(data, "a.dwg", options);
        Assert.Equal((2.5, 0.75), (drawing.Header.LtScale, drawing.Header.GetDouble("$DIMASZ")));
        Assert.Equal(count > 122, drawing.Header.Contains("$CHAMFERA"));
        Assert.Equal(count > 122 ? 0.125 : 0, drawing.Header.GetDouble("$CHAMFERA"));
        Assert.Equal(count > 160, drawing.Header.Contains("$TILEMODE"));
    }

    private static void Put(byte[] data, int place, double value) => BitConverter.GetBytes(value).CopyTo(data, place);

    private static EarlyFile WithStyles(EarlyFile file)
    {
        foreach (string name in new[] { "STANDARD", "SECOND" })
        {
            file.Add("STYLE", name, 0, 0.0, 1.0, 0.0, (byte)0, 0.2, new byte[128]);
        }

        return file;
    }

    private static byte[] Padded(string text, int width) =>
        System.Text.Encoding.Latin1.GetBytes(text.PadRight(width, '\0'));

    private static T Record<T>(CadDrawing drawing, string table) =>
        Assert.IsType<T>(Assert.Single(TableRecords.Of(drawing, table)));

    private static CadDrawing Read(EarlyFile file) => EarlyDwgReader.Read(file.Build(), "early.dwg", new LoadOptions());
}
