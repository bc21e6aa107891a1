using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Entities whose codes mean different things by their place.</summary>
public class EntityCodecTests
{
    private static readonly object[] HatchHead = [0, "HATCH", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbHatch", 10,
        0, 20, 0, 30, 2, 210, 0, 220, 0, 230, 1];

    [Fact]
    public void A_hatch_keeps_every_kind_of_edge()
    {
        CadHatch hatch = (CadHatch)Again(
        [
            .. HatchHead, 2, "SOLID", 70, 1, 71, 0, 91, 2,
            92, 7, 72, 1, 73, 1, 93, 3, 10, 0, 20, 0, 42, 0, 10, 4, 20, 0, 42, 1, 10, 4, 20, 4, 42, 0, 97, 1, 330, "2F",
            92, 1, 93, 4,
            72, 1, 10, 1, 20, 2, 11, 3, 21, 4,
            72, 2, 10, 5, 20, 6, 40, 7, 50, 10, 51, 20, 73, 0,
            72, 3, 10, 8, 20, 9, 11, 2, 21, 0, 40, 0.5, 50, 0, 51, 90, 73, 1,
            72, 4, 94, 3, 73, 1, 74, 0, 95, 2, 96, 2, 40, 0, 40, 1, 10, 1, 20, 1, 42, 2, 10, 2, 20, 2, 42, 3, 97, 0,
            75, 1, 76, 1, 98, 2, 10, 1, 20, 1, 10, 2, 20, 2,
        ]);
        CadPolylineBoundaryPath outline = (CadPolylineBoundaryPath)hatch.BoundaryPaths[0].BoundaryPath;
        Assert.Equal([0, 1, 0], outline.Bulges);
        Assert.Equal("2F", Assert.Single(hatch.BoundaryPaths[0].SourceBoundaryObjects));
        CadEdgeBoundaryPath edges = (CadEdgeBoundaryPath)hatch.BoundaryPaths[1].BoundaryPath;
        Assert.Equal(Enum.GetValues<CadHatchBoundaryType>(), edges.Edges.Select(edge => edge.EdgeType));
        Assert.False(((CadBoundaryPathCircularArc)edges.Edges[1]).CounterClockwise);
        CadBoundaryPathSpline spline = (CadBoundaryPathSpline)edges.Edges[3];
        Assert.Equal([2, 3], spline.Weights);
        Assert.Equal([0, 1], spline.KnotValues);
        Assert.Equal((1, 2, 2d), (hatch.HatchStyle, hatch.SeedPoints.Count, hatch.ElevationPoint.Z));
        Assert.Empty(hatch.UnknownCodes);
    }

    [Fact]
    public void Unknown_fields_among_the_boundaries_of_a_hatch_are_kept_and_the_rest_is_read()
    {
        CadHatch hatch = (CadHatch)Again(
        [
            .. HatchHead, 2, "SOLID", 70, 1, 71, 0, 91, 2,
            92, 2, 72, 0, 73, 1, 93, 3, 10, 0, 20, 0, 399, "x", 10, 4, 20, 0, 10, 4, 20, 4, 97, 0, 398, "y",
            92, 1, 93, 1, 72, 1, 10, 1, 20, 2, 11, 3, 21, 4, 97, 0,
            75, 1, 76, 1, 98, 1, 10, 7, 20, 8,
        ]);
        Assert.Equal(3, ((CadPolylineBoundaryPath)hatch.BoundaryPaths[0].BoundaryPath).Vertices.Count);
        CadEdgeBoundaryPath edges = (CadEdgeBoundaryPath)hatch.BoundaryPaths[1].BoundaryPath;
        Assert.Equal(4, Assert.IsType<CadBoundaryPathLine>(edges.Edges.Single()).SecondPoint.Y);
        Assert.Equal((2d, 1, 8d), (hatch.ElevationPoint.Z, hatch.HatchStyle, hatch.SeedPoints.Single().Y));
        Assert.Equal(["x", "y"], hatch.UnknownCodes.Select(static code => code.Value));
    }

    [Fact]
    public void A_hatch_keeps_its_pattern_and_gradient()
    {
        CadHatch hatch = (CadHatch)Again(
        [
            .. HatchHead, 2, "ANSI", 70, 0, 71, 0, 91, 0, 75, 0, 76, 1, 52, 45, 41, 2, 77, 0, 78, 2,
            53, 45, 43, 1, 44, 2, 45, 3, 46, 4, 79, 2, 49, 0.5, 49, -0.25, 53, 135, 43, 0, 44, 0, 45, 1, 46, 1, 79, 0,
                98, 0,
            450, 1, 451, 0, 460, 0.5, 461, 0, 452, 0, 462, 1, 453, 2, 463, 0, 63, 5, 421, 255, 463, 1, 63, 2, 421,
                65280, 470, "LINEAR",
        ]);
        Assert.Equal([0.5, -0.25], hatch.PatternDefinitions[0].DashLengths);
        Assert.True(hatch.PatternDefinitions[0].LineOffset.Is(3, 4));
        Assert.Equal(135, hatch.PatternDefinitions[1].LineAngle);
        Assert.Equal((45, 2), (hatch.PatternAngle, hatch.PatternScale));
        Assert.Equal([255, 65280], hatch.GradientColors);
        Assert.Equal(("LINEAR", 0.5), (hatch.GradientName, hatch.GradientAngle));
    }

    [Theory]
    [InlineData(0, typeof(CadRotatedDimension))]
    [InlineData(33, typeof(CadAlignedDimension))]
    [InlineData(34, typeof(Cad2LineAngularDimension))]
    [InlineData(163, typeof(CadDiametricDimension))]
    [InlineData(4, typeof(CadRadialDimension))]
    [InlineData(37, typeof(CadAngularDimension))]
    [InlineData(70, typeof(CadDimensionOrdinate))]
    public void The_type_of_a_dimension_tells_its_class(int type, Type expected)
    {
        CadDimensionBase dimension = (CadDimensionBase)Again(
            [0, "DIMENSION", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbDimension", 2, "*D1", 10, 1, 20, 2, 30, 3,
                70, type, 1, "<> mm", 3, "ISO"]);
        Assert.IsType(expected, dimension);
        Assert.Equal((type, "*D1", "<> mm", "ISO"),
            (dimension.TypeOfDimension, dimension.BlockName, dimension.Text, dimension.StyleName));
        Assert.Equal(type & 7, (int)dimension.DimensionType);
    }

    [Fact]
    public void A_multiline_keeps_the_lengths_of_its_lines()
    {
        CadMultiLine line = (CadMultiLine)Again(
        [
            0, "MLINE", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbMline", 2, "STANDARD", 40, 2, 70, 1, 71, 1, 72, 1,
                73, 2,
            10, 0, 20, 0, 30, 0, 210, 0, 220, 0, 230, 1, 11, 5, 21, 6, 31, 0, 12, 1, 22, 0, 32, 0, 13, 0, 23, 1, 33, 0,
            74, 2, 41, 0.5, 41, 0, 75, 0, 74, 1, 41, -0.5, 75, 0,
        ]);
        CadMultiLineVectorBlock vertex = Assert.Single(line.Vertices);
        Assert.True(vertex.Location.Is(5, 6, 0) && vertex.Miter.Is(0, 1, 0));
        Assert.Equal([[0.5, 0], [-0.5]], vertex.ElementParameters);
    }

    [Fact]
    public void A_line_type_keeps_its_letters_between_its_dashes()
    {
        CadImage image = DxfText.Load(DxfText.Header("AC1015") + DxfText.Tags(
            0, "SECTION", 2, "TABLES", 0, "TABLE", 2, "LTYPE", 70, 1, 0, "LTYPE", 5, "14", 100, "AcDbSymbolTableRecord",
            100, "AcDbLinetypeTableRecord", 2, "GAS", 70, 0, 3, "Gas", 72, 65, 73, 2, 40, 1.5, 49, 1, 74, 0, 49, -0.5,
                74, 2, 75, 0,
            340, "11", 46, 0.1, 50, 0, 44, -0.1, 45, -0.05, 9, "GAS", 0, "ENDTAB", 0, "ENDSEC") + DxfText.Entities()
                + DxfText.Tags(0, "EOF"));
        CadLineTypeTableObject type = DxfText.Reload(image).LineTypes["gas"];
        Assert.Equal([1, -0.5], type.Pattern);
        Assert.True(type.IsComplex);
        Assert.Equal("GAS", type.ComplexTags[^1].Tag.Value);
        Assert.All(type.ComplexTags, tag => Assert.Equal(2, tag.Element));
    }

    [Fact]
    public void Attributes_have_codes_of_their_own_for_alignment()
    {
        CadInsertObject insert = (CadInsertObject)Again(
        [
            0, "INSERT", 5, "A1", 100, "AcDbEntity", 8, "0", 100, "AcDbBlockReference", 66, 1, 2, "B", 10, 0, 20, 0,
            0, "ATTRIB", 5, "A2", 100, "AcDbEntity", 8, "0", 100, "AcDbText", 10, 0, 20, 0, 40, 1, 1, "7", 11, 3, 21, 4,
            100, "AcDbAttribute", 2, "TAG", 70, 8, 73, 12, 74, 3, 0, "SEQEND", 5, "A3", 100, "AcDbEntity", 8, "0",
        ]);
        var attribute = Assert.Single(insert.Attributes);
        Assert.Equal((12, 3, "TAG", 8),
            (attribute.FieldLength, attribute.VerticalAlignment, attribute.DefinitionTagString, attribute.AttFlags));
        Assert.True(attribute.SecondAlignment.Is(3, 4, 0));
        Assert.NotNull(insert.Seqend);
    }

    // What has been read, written and read again; of release 2018, which has all codes.
    private static CadEntityBase Again(object[] tags)
    {
        string text = DxfText.Header("AC1032") + DxfText.Entities(tags) + DxfText.Tags(0, "EOF");
        return Assert.Single(DxfText.Reload(DxfText.Load(text)).Entities);
    }
}
