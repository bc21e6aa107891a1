using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Sections;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Fields that text files and drawing databases both have, beside the public ones.</summary>
public class ViewFieldTests
{
    private const string Id = "{8f942e25-c643-b445-9065-adb9a556eac9}";

    private static readonly object[] Lighting =
        [292, 0, 282, 0, 141, 0.25, 142, -0.5, 63, 3, 421, 0x00FF00, 431, "ACME$Moss"];

    private static readonly object[] Ucs =
        [79, 2, 146, 7.5, 110, 1.0, 120, 2.0, 130, 3.0, 111, 0.0, 121, 1.0, 131, 0.0, 112, 1.0, 122, 0.0, 132, 0.0];

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1024)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Views_keep_coordinate_systems_light_and_grids(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(
            DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "VPORT", 70, 1, 0, "VPORT", 5, "A1",
                100, "AcDbSymbolTableRecord", 100, "AcDbViewportTableRecord", 2, "*Active", 70, 0,
                73, 0, 74, 1, 75, 1, 76, 1, 77, 1, 78, 2, 281, 4, 65, 0, 60, 2, 61, 8)
            + DxfText.Tags([.. Ucs, .. Lighting]) + DxfText.Tags(0, "ENDTAB", 0, "TABLE", 2, "VIEW", 70, 1,
                0, "VIEW", 5, "A2", 100, "AcDbSymbolTableRecord", 100, "AcDbViewTableRecord", 2, "North", 70, 0,
                281, 3, 72, 1, 73, 1)
            + DxfText.Tags([.. Ucs, .. Lighting]) + DxfText.Tags(0, "ENDTAB", 0, "ENDSEC")
            + DxfText.Entities([0, "VIEWPORT", 5, "A3", 67, 1, 100, "AcDbEntity", 8, "0", 100, "AcDbViewport",
                40, 4.0, 41, 3.0, 79, 1, 146, 2.5, 170, 3, 61, 9, .. Lighting]));

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        bool hasLight = version >= CadAcadVersion.AC1021;
        CadVportTableObject port = again.ViewPorts.Items.First(static one => one.Name == "*Active");
        Assert.Equal((0, 1, 1, 1), (port.ZoomsFast, port.UcsIcon, port.SnapsToGrid, port.ShowsGrid));
        Assert.Equal((1, 2), (port.SnapStyle, port.SnapPair));
        Assert.Equal((4, 0, 2, 7.5), (port.RenderMode, port.HasOwnUcs, port.UcsOrthographicType, port.UcsElevation));
        Assert.Equal((2.0, 1.0, 1.0), (port.UcsOrigin.Y, port.UcsXAxis.Y, port.UcsYAxis.X));
        Assert.Equal(hasLight ? (2, 8) : (3, 5), (port.GridFlags, port.MajorGridLines));
        Assert.Equal(hasLight ? (false, 0, 0.25, -0.5, 0x00FF00, "ACME$Moss") : (true, 1, 0, 0, -1, ""),
            (port.UsesDefaultLights, port.DefaultLighting, port.Brightness, port.Contrast, port.AmbientColorValue,
                port.AmbientColorName));
        CadViewTableObject view = again.Views.Items.First(static one => one.Name == "North");
        Assert.Equal((3, true, hasLight, 2, 7.5), (view.RenderMode, view.HasUcs, view.IsCameraPlotted,
            view.UcsOrthographicType, view.UcsElevation));
        Assert.Equal((3.0, hasLight ? -0.5 : 0), (view.UcsOrigin.Z, view.Contrast));
        CadViewport viewport = DrawingWalk.Entities(again).OfType<CadViewport>().First(static one => one.Width == 4);
        Assert.Equal((1, 2.5), (viewport.UcsOrthographicType, viewport.UcsElevation));
        Assert.Equal(hasLight ? (9, 3, 0.25) : (5, 0, 0),
            (viewport.MajorGridLines, viewport.ShadePlotMode, viewport.Brightness));
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Records_jogged_dimensions_and_links_keep_what_their_class_tells(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(
            DxfText.Tags(0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LAYER", 70, 1, 0, "LAYER", 5, "A1",
                100, "AcDbSymbolTableRecord", 100, "AcDbLayerTableRecord", 2, "Walls", 70, 0, 62, 3, 348, "A6",
                0, "ENDTAB", 0, "TABLE", 2, "BLOCK_RECORD", 70, 1, 0, "BLOCK_RECORD", 5, "A2",
                100, "AcDbSymbolTableRecord", 100, "AcDbBlockTableRecord", 2, "Door", 310, "28000000", 310, "20FF",
                0, "ENDTAB", 0, "ENDSEC", 0, "SECTION", 2, "BLOCKS", 0, "BLOCK", 5, "A7", 100, "AcDbEntity", 8, "0",
                100, "AcDbBlockBegin", 2, "Door", 70, 0, 0, "ENDBLK", 5, "A8", 100, "AcDbEntity", 8, "0", 0, "ENDSEC")
            + DxfText.Entities(0, "LARGE_RADIAL_DIMENSION", 5, "A3", 100, "AcDbEntity", 8, "0",
                100, "AcDbDimension", 70, 169, 100, "AcDbRadialDimensionLarge", 40, 0.5)
            + DxfText.Tags(0, "SECTION", 2, "OBJECTS", 0, "OBJECT_PTR", 5, "A4", 100, "CAseDLPNTableRecord",
                0, "XRECORD", 5, "A6", 100, "AcDbXrecord", 0, "ENDSEC"));

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        Assert.Equal("A6", version >= CadAcadVersion.AC1027
            ? again.Layers.Items.First(static one => one.Name == "Walls").VisualStyleHandle : "A6");
        Assert.Equal("2800000020FF", Convert.ToHexString(
            again.BlockRecords.Items.First(static one => one.Name == "Door").Preview));
        CadJoggedDimension dimension = Assert.IsType<CadJoggedDimension>(again.Entities[0]);
        Assert.Equal((169, CadDimensionType.Radius), (dimension.TypeOfDimension, dimension.DimensionType));
        Assert.Contains(again.Objects, static one => one is CadObjectPtr);
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1024)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Solids_keep_history_and_revision(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(DxfText.Entities(
            0, "3DSOLID", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbModelerGeometry", 290, 1, 2, Id,
            100, "AcDb3dSolid", 350, "A2") + DxfText.Tags(0, "SECTION", 2, "OBJECTS", 0, "XRECORD", 5, "A2",
            100, "AcDbXrecord", 70, 1, 0, "ENDSEC"));

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        Cad3DSolid solid = Assert.IsType<Cad3DSolid>(again.Entities[0]);
        Assert.Equal("A2", solid.History?.Handle);
        Assert.Equal(version >= CadAcadVersion.AC1027 ? Guid.Parse(Id) : null, solid.Revision);
    }

    // A caret has a blank after it in text files, which no database has.
    [Fact]
    public void Carets_of_solids_are_those_of_text_files()
    {
        Cad3DSolid solid = new();
        solid.AcisData.AddRange(["ni ^ *+0;:,4 o g o", "mo ^ LR mmlqoqnqnflo"]);
        CadDrawing drawing = new(DrawingSeed.Standard);
        drawing.ModelSpace.Entities.Add(solid);

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, CadAcadVersion.AC1015).Item1;

        Assert.Equal(solid.AcisData, Assert.IsType<Cad3DSolid>(again.Entities[0]).AcisData);
    }

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1024)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Proxies_of_objects_keep_their_bits(CadAcadVersion version)
    {
        CadDrawing drawing = Draw(DxfText.Tags(0, "SECTION", 2, "OBJECTS", 0, "ACAD_PROXY_OBJECT", 5, "A1", 330, "0",
            100, "AcDbProxyObject", 90, 499, 91, 500, 95, 0x7D001F, 70, 1, 93, 13, 310, "A5F8", 330, "A2", 360, "A2",
            94, 0, 0, "XRECORD", 5, "A2", 100, "AcDbXrecord", 70, 1, 0, "ENDSEC"));

        CadDrawing again = ObjectRoundTripTests.WriteAndRead(drawing, version).Item1;

        CadAcadProxyObject proxy = Assert.Single(again.Objects.OfType<CadAcadProxyObject>());
        Assert.Equal((500, 1, 13), (proxy.ApplicationClassId, proxy.OriginalFormat, proxy.DataSize));
        Assert.Equal([0xA5, 0xF8], proxy.Data);
        Assert.Equal(0x7D001F, proxy.DrawingFormat);
        Assert.Equal([(330, "A2"), (360, "A2")],
            proxy.References.Select(static one => (one.Attribute, (string)one.Value!)));
    }

    [Theory]
    [InlineData(24)]
    [InlineData(32)]
    public void Previews_become_PNG_and_back(int depth)
    {
        byte[] bitmap = new byte[40 + 24];
        bitmap[0] = 40;
        (bitmap[4], bitmap[8], bitmap[12], bitmap[14]) = (2, 3, 1, (byte)depth);
        for (int i = 40; i < bitmap.Length; i++)
        {
            bitmap[i] = (byte)(depth == 32 && (i & 3) == 3 ? 255 : 4 * i);
        }

        byte[] png = PreviewBitmap.ToPng(bitmap);
        Assert.True(PreviewSection.IsPng(png));
        byte[] again = PreviewBitmap.From(png, "a");
        const int stride = 8; // rows of 24 bits end at four bytes
        for (int y = 0; y < 3; y++)
        {
            for (int x = 0; x < 2; x++)
            {
                Assert.Equal(
                    bitmap.AsSpan(40 + (y * stride) + (x * depth / 8), 3).ToArray(),
                    again.AsSpan(40 + (8 * y) + (4 * x), 3).ToArray());
            }
        }

        Assert.Equal([1, 2, 3], PreviewBitmap.ToPng([1, 2, 3]));
    }

    private static CadDrawing Draw(string parts) =>
        DxfText.Load(DxfText.Header("AC1032") + parts + DxfText.Tags(0, "EOF")).Drawing;
}
