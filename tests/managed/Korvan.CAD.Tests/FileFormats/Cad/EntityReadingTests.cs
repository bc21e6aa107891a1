using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Each kind of entity from the fewest tags that say something, by the meaning of the codes.</summary>
public class EntityReadingTests
{
    private static readonly object[] Common =
        [8, "Walls", 6, "DASHED", 62, 3, 48, 2.5, 60, 1, 370, 35, 420, 0x102030, 430, "RAL$1", 440, 0x0200007F, 284, 2];

    [Theory]
    [InlineData("AC1009", false)]
    [InlineData("AC1015", true)]
    [InlineData("AC1032", true)]
    public void What_all_entities_have_is_read_in_each_form(string release, bool markers)
    {
        CadLine line = Read<CadLine>(release,
            Form(markers, "LINE", Common, "AcDbLine", 10, 1, 20, 2, 30, 3, 11, 4, 21, 5, 31, 6, 39, 7));
        Assert.Equal("1F", line.ObjectHandle);
        Assert.Equal(("Walls", "DASHED", 3, 2.5, 1),
            (line.LayerName, line.LineTypeName, line.ColorId, line.LinetypeScale, line.Visible));
        Assert.Equal((35, 0x102030, "RAL$1", 0x0200007F),
            (line.LineWeight, line.ColorValue, line.ColorName, line.Transparency));
        Assert.Equal((2, 7.0), ((int)line.ShadowMode, line.Thickness));
        At(line.FirstPoint, 1, 2, 3);
        At(line.SecondPoint, 4, 5, 6);
        Assert.Empty(line.UnknownCodes);
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Curves_have_their_geometry(bool markers)
    {
        CadArc arc = Read<CadArc>(Form(markers, "ARC", [8, "0"], "AcDbCircle", 10, 1, 20, 2, 30, 3, 40, 4, 210, 0, 220,
            0, 230, -1, 100, "AcDbArc", 50, 30, 51, 120));
        At(arc.CenterPoint, 1, 2, 3);
        At(arc.ExtrusionDirection, 0, 0, -1);
        Assert.Equal((4.0, 30.0, 120.0), (arc.Radius, arc.StartAngle, arc.EndAngle));

        CadEllipse ellipse = Read<CadEllipse>(
            Form(markers, "ELLIPSE", [8, "0"], "AcDbEllipse", 10, 1, 20, 2, 30, 3, 11, 4, 21, 5, 31, 6, 40, 0.25, 41,
                0.5, 42, 1.5));
        At(ellipse.MajorEndPoint, 4, 5, 6);
        Assert.Equal((0.25, 0.5, 1.5), (ellipse.AxisRatio, ellipse.StartAngle, ellipse.EndAngle));

        CadSpline spline = Read<CadSpline>(Form(
            markers, "SPLINE", [8, "0"], "AcDbSpline", 70, 8, 71, 2, 72, 6, 73, 3, 74, 1, 42, 1e-9, 12, 1, 22, 0, 32, 0,
                13, 0, 23, 1, 33, 0,
            40, 0, 40, 0, 40, 0, 40, 1, 40, 1, 40, 1, 41, 1, 41, 0.5, 41, 1, 10, 0, 20, 0, 30, 0, 10, 1, 20, 1, 30, 5,
                10, 2, 20, 0, 30, 0, 11, 9, 21, 8, 31, 7));
        Assert.Equal([0, 0, 0, 1, 1, 1], spline.KnotValues);
        Assert.Equal([1, 0.5, 1], spline.Weights);
        Assert.Equal((2, 1e-9, false), (spline.Degree, spline.KnotTolerance, spline.IsClosed));
        At(spline.ControlPoints[1], 1, 1, 5);
        At(Assert.Single(spline.FitPoints), 9, 8, 7);
        At(spline.StartTangent, 1, 0, 0);
        At(spline.EndTangent, 0, 1, 0);
    }

    [Fact]
    public void Missing_codes_leave_what_the_format_says()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "LINE", 0, "INSERT", 2, "A", 0, "TEXT", 1, "x", 0, "MTEXT", 1, "y", 0, "ELLIPSE", 0, "VIEWPORT", 0,
                "LWPOLYLINE", 90, 1, 10, 1, 20, 1, 0, "POINT", 10, 7));
        CadLine line = (CadLine)image.Entities[0];
        Assert.Equal(("0", "BYLAYER", 256, -1, 1.0),
            (line.LayerName, line.LineTypeName, line.ColorId, line.LineWeight, line.LinetypeScale));
        Assert.Equal((-1, 0, CadEntitySpaceMode.ModelSpace), (line.ColorValue, line.Transparency, line.SpaceMode));
        At(line.ExtrusionDirection, 0, 0, 1);
        CadInsertObject insert = (CadInsertObject)image.Entities[1];
        Assert.Equal((1.0, 1.0, 1.0, 1, 1),
            (insert.ScaleX, insert.ScaleY, insert.ScaleZ, insert.ColumnCount, insert.RowCount));
        CadText text = (CadText)image.Entities[2];
        Assert.Equal((1.0, 0, 0, 0.0),
            (text.ScaleX, text.HorizontalAlignment, text.VerticalAlignment, text.ObliqueAngle));
        CadMText lines = (CadMText)image.Entities[3];
        Assert.Equal((CadAttachmentPoint.TopLeft, 1.0, 0.0),
            (lines.AttachmentPoint, lines.LineSpacingFactor, lines.ReferenceRectangleWidth));
        CadEllipse ellipse = (CadEllipse)image.Entities[4];
        Assert.Equal((0, Math.Tau), (ellipse.StartAngle, ellipse.EndAngle));
        At(((CadViewport)image.Entities[5]).ViewDirection, 0, 0, 1);
        Assert.Equal((0, 0),
            (((CadLwPolyline)image.Entities[6]).Bulges.Count, ((CadLwPolyline)image.Entities[6]).StartWidths.Count));
        At(((CadPoint)image.Entities[7]).CenterPoint, 7, 0, 0);
    }

    [Fact]
    public void The_order_of_codes_does_not_matter_where_none_repeats()
    {
        CadLine line = Read<CadLine>([0, "LINE", 100, "AcDbEntity", 62, 5, 8, "A", 100, "AcDbLine", 230, -1, 31, 6, 21,
            5, 11, 4, 30, 3, 20, 2, 10, 1]);
        At(line.FirstPoint, 1, 2, 3);
        At(line.SecondPoint, 4, 5, 6);
        At(line.ExtrusionDirection, 0, 0, -1);
        CadText text = Read<CadText>([0, "TEXT", 1, "x", 73, 2, 72, 1, 21, 8, 11, 9, 40, 3, 20, 2, 10, 1, 8, "A"]);
        At(text.SecondAlignment, 9, 8, 0);
        Assert.Equal((2, 1, 3.0, "A"),
            (text.VerticalAlignment, text.HorizontalAlignment, text.TextHeight, text.LayerName));
    }

    [Fact]
    public void The_last_of_a_repeated_code_holds_where_a_list_is_not_meant()
    {
        CadCircle circle = Read<CadCircle>([0, "CIRCLE", 8, "A", 8, "B", 10, 1, 20, 2, 40, 3, 40, 4, 10, 9]);
        Assert.Equal(("B", 4.0), (circle.LayerName, circle.Radius));
        At(circle.CenterPoint, 9, 2, 0);
    }

    [Fact]
    public void Codes_of_a_class_count_behind_its_marker_alone()
    {
        // Codes that all entities have are taken wherever they stand, as nothing else claims them there.
        CadCircle circle = Read<CadCircle>([0, "CIRCLE", 5, "2A", 100, "AcDbEntity", 40, 77, 8, "A", 100, "AcDbCircle",
            10, 1, 20, 2, 40, 3, 8, "B"]);
        Assert.Equal((3.0, "B"), (circle.Radius, circle.LayerName));
        Assert.Equal([40], circle.UnknownCodes.Select(code => code.Attribute));
    }

    [Fact]
    public void Texts_and_their_kin()
    {
        CadText text = Read<CadText>(Form(
            true, "TEXT", [8, "0"], "AcDbText", 10, 1, 20, 2, 40, 3, 1, "Hello", 50, 45, 41, 0.8, 51, 15, 7, "ROMANS",
                71, 6, 72, 4, 11, 5, 21, 6, 100, "AcDbText", 73, 3));
        Assert.Equal(("Hello", 3.0, 45.0, 0.8, 15.0),
            (text.DefaultValue, text.TextHeight, text.TextRotation, text.ScaleX, text.ObliqueAngle));
        Assert.Equal(("ROMANS", 6, 4, 3),
            (text.StyleType, text.TextGenerationFlags, text.HorizontalAlignment, text.VerticalAlignment));

        CadMText lines = Read<CadMText>(Form(
            true, "MTEXT", [8, "0"], "AcDbMText", 10, 1, 20, 2, 40, 3, 41, 40, 71, 6, 72, 5, 3, "first ", 3, "second ",
                1, "third", 7, "S", 11, 0, 21, 1, 73, 2, 44, 1.5));
        Assert.Equal("first second third", lines.Text);
        Assert.Equal((6, 40.0, "S", 1.5),
            ((int)lines.AttachmentPoint, lines.ReferenceRectangleWidth, lines.TextStyleName, lines.LineSpacingFactor));
        At(lines.TextDirection, 0, 1, 0);

        CadTolerance frame = Read<CadTolerance>(Form(true, "TOLERANCE", [8, "0"], "AcDbFcf", 3, "ISO", 10, 1, 20, 2, 1,
            "{\\Fgdt;j}%%v0.1", 11, 0, 21, 1));
        Assert.Equal(("ISO", "{\\Fgdt;j}%%v0.1"), (frame.DimensionStyleName, frame.VisualRepresentation));
        CadShape shape = Read<CadShape>(Form(true, "SHAPE", [8, "0"], "AcDbShape", 10, 1, 20, 2, 40, 3, 2, "BAT", 50,
            90, 41, 2, 51, 10));
        Assert.Equal(("BAT", 3.0, 90.0, 2.0, 10.0),
            (shape.ShapeName, shape.Size, shape.RotationAngle, shape.ScaleX, shape.ObliqueAngle));
    }

    [Fact]
    public void References_with_their_attributes_end_at_their_end()
    {
        CadImage image = DxfText.Load(DxfText.Drawing(
            0, "INSERT", 8, "0", 66, 1, 2, "DOOR", 10, 1, 20, 2, 41, 3, 42, -4, 43, 5, 50, 90, 70, 2, 71, 3, 44, 10, 45,
                20,
            0, "ATTRIB", 8, "0", 10, 7, 20, 8, 40, 2, 1, "A1", 2, "NO", 70, 8, 72, 1, 11, 9, 21, 9, 74, 2,
            0, "ATTRIB", 8, "0", 10, 7, 20, 8, 40, 2, 1, "A2", 2, "KIND", 70, 1, 0, "SEQEND", 8, "0",
            0, "ATTDEF", 8, "0", 10, 1, 20, 1, 40, 1, 1, "default", 3, "Number?", 2, "NO", 70, 4));
        CadInsertObject insert = (CadInsertObject)image.Entities[0];
        Assert.Equal(("DOOR", 3.0, -4.0, 5.0, 90.0),
            (insert.Name, insert.ScaleX, insert.ScaleY, insert.ScaleZ, insert.RotationAngle));
        Assert.Equal((2, 3, 10.0, 20.0),
            (insert.ColumnCount, insert.RowCount, insert.ColumnSpacing, insert.RowSpacing));
        Assert.Equal(["NO=A1", "KIND=A2"],
            insert.Attributes.Select(attribute => $"{attribute.DefinitionTagString}={attribute.DefaultValue}"));
        Assert.Equal((8, 1, 2),
            (insert.Attributes[0].AttFlags, insert.Attributes[0].HorizontalAlignment,
                insert.Attributes[0].VerticalAlignment));
        CadAttDef definition = Assert.IsType<CadAttDef>(image.Entities[1]);
        Assert.Equal(("Number?", "NO", "default", 4),
            (definition.PromptString, definition.DefinitionTagString, definition.DefaultValue, definition.AttFlags));
    }

    [Fact]
    public void Polylines_of_both_kinds()
    {
        CadLwPolyline light = Read<CadLwPolyline>(Form(
            true, "LWPOLYLINE", [8, "0"], "AcDbPolyline", 90, 3, 70, 129, 38, 5, 43, 0, 10, 0, 20, 0, 40, 1, 41, 2, 42,
                0.5, 10, 4, 20, 0, 10, 4, 20, 4, 42, -1));
        Assert.True(light.IsClosed);
        Assert.Equal(5, light.Elevation);
        Assert.Equal([0.5, 0, -1], light.Bulges);
        Assert.Equal((1.0, 2.0), (light.StartWidths[0], light.EndWidths[0]));

        CadPolyline heavy = (CadPolyline)DxfText.Load(DxfText.Drawing(
            0, "POLYLINE", 8, "0", 66, 1, 10, 0, 20, 0, 30, 5, 70, 1, 40, 1, 41, 2,
            0, "VERTEX", 8, "0", 10, 1, 20, 2, 30, 5, 40, 3, 41, 4, 42, 0.5, 70, 2, 50, 30, 0, "VERTEX", 8, "0", 10, 9,
                20, 8, 0, "SEQEND")).Entities[0];
        CadVertexBase vertex = heavy.Vertices[0];
        Assert.Equal((true, 5.0, 1.0, 2.0), (heavy.IsClosed, heavy.Elevation.Z, heavy.StartWidth, heavy.EndWidth));
        Assert.Equal((3.0, 4.0, 0.5, 2, 30.0),
            (vertex.StartWidth, vertex.EndWidth, vertex.Bulge, vertex.VertexFlags, vertex.CurveFitTangent));

        CadPolyFaceMesh mesh = (CadPolyFaceMesh)DxfText.Load(DxfText.Drawing(
            0, "POLYLINE", 8, "0", 66, 1, 70, 64, 71, 3, 72, 1, 0, "VERTEX", 8, "0", 10, 0, 20, 0, 70, 192, 0, "VERTEX",
                8, "0", 10, 1, 20, 0, 70, 192,
            0, "VERTEX", 8, "0", 10, 1, 20, 1, 70, 192, 0, "VERTEX", 8, "0", 10, 0, 20, 0, 70, 128, 71, 1, 72, -2, 73,
                3, 0, "SEQEND")).Entities[0];
        CadFaceRecord face = Assert.IsType<CadFaceRecord>(mesh.Vertices[3]);
        Assert.Equal((1, -2, 3, 0), (face.VertexIndex1, face.VertexIndex2, face.VertexIndex3, face.VertexIndex4));
        Assert.IsType<CadVertexPolyFaceMesh>(mesh.Vertices[0]);
    }

    [Fact]
    public void Areas_faces_and_lines_without_end()
    {
        object[] corners = [10, 1, 20, 2, 30, 3, 11, 4, 21, 5, 31, 6, 12, 7, 22, 8, 32, 9, 13, 10, 23, 11, 33, 12];
        CadSolid solid = Read<CadSolid>([0, "SOLID", 8, "0", .. corners, 39, 4]);
        CadTrace trace = Read<CadTrace>([0, "TRACE", 8, "0", .. corners]);
        Cad3DFace face = Read<Cad3DFace>([0, "3DFACE", 8, "0", .. corners, 70, 5]);
        foreach (Cad3DPoint last in new[] { solid.FourthPoint, trace.FourthPoint, face.FourthPoint })
        {
            At(last, 10, 11, 12);
        }

        Assert.Equal((4.0, 5), (solid.Thickness, face.InvisibleEdges));
        At(solid.ThirdPoint, 7, 8, 9);
        CadRay ray = Read<CadRay>(Form(true, "RAY", [8, "0"], "AcDbRay", 10, 1, 20, 2, 30, 3, 11, 0, 21, 1, 31, 0));
        CadXLine line = Read<CadXLine>(Form(true, "XLINE", [8, "0"], "AcDbXline", 10, 1, 20, 2, 30, 3, 11, 0, 21, 1, 31,
            0));
        At(ray.FirstPoint, 1, 2, 3);
        At(line.UnitDirection, 0, 1, 0);
    }

    [Fact]
    public void Leaders_wipeouts_and_viewports()
    {
        CadLeader leader = Read<CadLeader>(Form(
            true, "LEADER", [8, "0"], "AcDbLeader", 3, "ISO", 71, 0, 72, 1, 73, 0, 75, 1, 40, 2.5, 76, 2, 10, 1, 20, 2,
                30, 3, 10, 4, 20, 5, 30, 6, 340, "2F", 213, 7, 223, 8, 233, 9));
        Assert.Equal(("ISO", 0, 1, 1, 2.5, "2F"),
            (leader.DimensionStyleName, leader.ArrowheadFlag, leader.PathType, leader.HookLineFlag, leader.TextHeight,
                leader.AnnotationHandle));
        At(leader.Coordinates[1], 4, 5, 6);
        At(leader.LastVertexOffsetFromAnnotation, 7, 8, 9);

        CadWipeout wipeout = Read<CadWipeout>(Form(
            true, "WIPEOUT", [8, "0"], "AcDbWipeout", 90, 0, 10, 1, 20, 2, 30, 0, 11, 3, 21, 0, 31, 0, 12, 0, 22, 4, 32,
                0, 13, 1, 23, 1, 70, 7, 280, 1, 281, 50, 71, 2, 91, 3,
            14, -0.5, 24, -0.5, 14, 0.5, 24, -0.5, 14, 0.5, 24, 0.5));
        Assert.Equal(3, wipeout.ClipBoundaryVertices.Count);
        Assert.Equal((1, 2, -0.5),
            (wipeout.ClippingState, wipeout.ClippingBoundaryType, wipeout.ClipBoundaryVertices[1].Y));
        At(wipeout.VectorV, 0, 4, 0);

        CadViewport viewport = Read<CadViewport>(Form(
            true, "VIEWPORT", [8, "0"], "AcDbViewport", 10, 1, 20, 2, 40, 30, 41, 20, 68, 2, 69, 3, 12, 5, 22, 6, 16, 0,
                26, -1, 36, 0, 17, 7, 27, 8, 37, 9, 45, 50, 51, 30, 90, 32864,
            331, "1A", 331, "1B", 340, "2B"));
        Assert.Equal((30.0, 20.0, 2, 3),
            (viewport.Width, viewport.Height, viewport.ViewportStatus, viewport.ViewportId));
        Assert.Equal((5.0, 6.0, 50.0, 30.0, "2B"),
            (viewport.ViewCenter.X, viewport.ViewCenter.Y, viewport.ViewHeight, viewport.ViewTwistAngle,
                viewport.ClippingBoundaryHandle));
        At(viewport.ViewDirection, 0, -1, 0);
        At(viewport.ViewTarget, 7, 8, 9);
    }

    [Theory]
    [InlineData(160, "AcDbAlignedDimension", typeof(CadRotatedDimension))] // 0 with its flags
    [InlineData(33, "AcDbAlignedDimension", typeof(CadAlignedDimension))]
    [InlineData(38, "AcDbOrdinateDimension", typeof(CadDimensionOrdinate))]
    [InlineData(37, "AcDb3PointAngularDimension", typeof(CadAngularDimension))]
    public void Dimensions_have_their_parts(int type, string marker, Type expected)
    {
        CadDimensionBase dimension = Read<CadDimensionBase>(Form(
            true, "DIMENSION", [8, "0"], "AcDbDimension", 2, "*D7", 10, 1, 20, 2, 30, 3, 11, 4, 21, 5, 31, 6, 70, type,
                1, "<> mm", 71, 5, 42, 12.5, 53, 30, 3, "ISO", 100, marker, 13, 7, 23, 8, 33, 9));
        Assert.IsType(expected, dimension);
        Assert.Equal(("*D7", "<> mm", 12.5, 30.0, "ISO"),
            (dimension.BlockName, dimension.Text, dimension.ActualMeasurement, dimension.TextRotation,
                dimension.StyleName));
        At(dimension.MiddleOfTextPoint, 4, 5, 6);
        Cad3DPoint thirteen = dimension switch
        {
            CadAlignedDimension aligned => aligned.FirstExtensionPoint,
            CadDimensionOrdinate ordinate => ordinate.FeaturePoint,
            _ => ((CadAngularDimension)dimension).FirstPoint,
        };
        At(thirteen, 7, 8, 9);
        Assert.Empty(dimension.UnknownCodes);
    }

    private static object[] Form(bool markers, string name, object[] common, string marker, params object[] own)
    {
        object[] all = [0, name, 5, "1F", 100, "AcDbEntity", .. common, 100, marker, .. own];
        return markers ? all : [.. all.Chunk(2).Where(tag => tag[0] is not 100).SelectMany(tag => tag)];
    }

    private static T Read<T>(object[] tags)
        where T : CadEntityBase => Read<T>("AC1032", tags);

    private static T Read<T>(string release, object[] tags)
        where T : CadEntityBase
    {
        CadImage image = DxfText.Load(DxfText.Header(release) + DxfText.Entities(tags) + DxfText.Tags(0, "EOF"));
        return Assert.IsAssignableFrom<T>(Assert.Single(image.Entities));
    }

    private static void At(Cad3DPoint point, double x, double y, double z) =>
        Assert.Equal((x, y, z), (point.X, point.Y, point.Z));
}
