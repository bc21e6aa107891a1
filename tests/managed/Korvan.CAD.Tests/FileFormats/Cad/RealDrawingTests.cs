using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Drawings of all releases; the counts are those of an independent reader.</summary>
public class RealDrawingTests
{
    public static readonly TheoryData<string, string> Counts = new()
    {
        { "ezdxf__3_us_main.dxf", "LINE:10052 TEXT:1" },
        { "ezdxf__3dsolids.dxf", "3DSOLID:5" },
        { "ezdxf__ASCII_R12.dxf", "INSERT:1 LINE:2 TEXT:1" },
        { "ezdxf__VP4.dxf", "LINE:16 LWPOLYLINE:2 TEXT:4 VIEWPORT:5" },
        { "ezdxf__bin_dxf_r12.dxf", "LINE:3" },
        { "ezdxf__bin_dxf_r2000.dxf", "TEXT:1" },
        { "ezdxf__dimension_in_nested_blocks.dxf",
            "DIMENSION:1 INSERT:7 LINE:9 LWPOLYLINE:3 MTEXT:3 POINT:9 SOLID:6 TEXT:3" },
        { "ezdxf__hatches_1.dxf", "ARC:6 HATCH:10 LWPOLYLINE:16" },
        { "ezdxf__multi_insert_with_attribs.dxf", "ATTDEF:3 CIRCLE:1 INSERT:1 POLYLINE:1" },
        { "ezdxf__recover01.dxf", "LINE:1441 TEXT:63" },
        { "ezdxf__small_r13.dxf", "POLYLINE:16" },
        { "ezdxf__uncommon.dxf",
            "3DSOLID:2 ARC:14 ARC_DIMENSION:1 ATTDEF:1 CIRCLE:1 DIMENSION:13 INSERT:1 LARGE_RADIAL_DIMENSION:2 "
                + "LINE:93 LWPOLYLINE:9 MESH:1 MTEXT:47 MULTILEADER:2 POINT:94 POLYLINE:2 RAY:3 SOLID:35 SPLINE:1 "
                + "VIEWPORT:2 XLINE:2" },
        { "lwg__example_2007.dxf",
            "3DFACE:2 3DSOLID:1 ACAD_TABLE:1 ARC:5 ARC_DIMENSION:1 ATTDEF:3 CIRCLE:1 DIMENSION:9 ELLIPSE:1 HATCH:1 "
                + "INSERT:10 LIGHT:1 LINE:68 LWPOLYLINE:11 MLINE:1 MTEXT:18 MULTILEADER:1 POINT:46 POLYLINE:2 RAY:1 "
                + "REGION:2 SOLID:15 SPLINE:2 TEXT:2 TOLERANCE:1 VIEWPORT:2 WIPEOUT:2 XLINE:1" },
        { "lwg__example_2018.dxfb",
            "ARC:1 ATTDEF:3 CIRCLE:1 ELLIPSE:1 HATCH:1 INSERT:9 LINE:12 LWPOLYLINE:9 MTEXT:1 POINT:13 RAY:1 REGION:1 "
                + "SPLINE:1 TEXT:1 VIEWPORT:2 WIPEOUT:1 XLINE:1" },
        { "lwg__example_r12.dxf",
            "3DFACE:2 ARC:7 ATTDEF:3 CIRCLE:1 DIMENSION:9 INSERT:35 LINE:1454 POINT:46 POLYLINE:17 SOLID:18 TEXT:32 "
                + "VIEWPORT:1" },
    };

    [DrawingTheory]
    [MemberData(nameof(Counts))]
    public void Entities_are_those_that_an_independent_reader_finds(string file, string counts)
    {
        Assert.Equal(counts, Count(Load(file)));
    }

    [DrawingFact]
    public void Every_drawing_survives_saving_without_a_change()
    {
        foreach (string file in SharedDrawings.AllDxf())
        {
            CadImage first = (CadImage)Image.Load(file);
            string saved = DxfText.Save(first);
            CadImage second = DxfText.Reload(first);
            Assert.Equal(Count(first), Count(second));
            Assert.Equal(first.Objects.Count, second.Objects.Count);
            Assert.Equal(first.GetStrings(), second.GetStrings());

            // What is lost in the first save would be missing, what is added would grow: the second is the same.
            Assert.True(saved == DxfText.Save(second), $"{Path.GetFileName(file)} changes when it is saved again");
        }
    }

    [DrawingFact]
    public void Hatches_have_their_outlines()
    {
        List<CadHatch> hatches = [.. Load("ezdxf__hatches_1.dxf").Entities.OfType<CadHatch>()];
        List<ICadBoundaryPath> paths = [.. hatches.SelectMany(hatch => hatch.BoundaryPaths).Select(path =>
            path.BoundaryPath)];
        Assert.All(paths, path => Assert.True(
            path is CadPolylineBoundaryPath { Vertices.Count: > 1 } or CadEdgeBoundaryPath { Edges.Count: > 0 }));
        Assert.All(hatches, hatch => Assert.Empty(hatch.UnknownCodes));
    }

    [DrawingFact]
    public void A_grid_of_insertions_keeps_its_attributes()
    {
        CadInsertObject insert = Load("ezdxf__multi_insert_with_attribs.dxf").Entities.OfType<CadInsertObject>()
            .Single();
        Assert.True(insert.IsGrid);
        Assert.NotEmpty(insert.Attributes);
        Assert.All(insert.Attributes, (CadAttrib attribute) => Assert.NotEqual("", attribute.DefinitionTagString));
        Assert.Empty(insert.UnknownCodes);
    }

    [DrawingFact]
    public void Polylines_have_their_vertices_in_place()
    {
        CadPolylineBase[] polylines = [.. Load("lwg__example_2018.dxf").BlockEntities.Items
            .SelectMany(block => block.Entities).OfType<CadPolylineBase>()];
        Assert.NotEmpty(polylines);
        Assert.All(polylines, polyline =>
            Assert.Contains(polyline.Vertices, vertex => !vertex.LocationPoint.Is(0, 0, 0)));
        Assert.All(polylines.SelectMany(polyline => polyline.Vertices), vertex => Assert.Empty(vertex.UnknownCodes));
    }

    [DrawingFact]
    public void Layouts_lead_to_their_entities()
    {
        CadImage image = Load("ezdxf__VP4.dxf");
        Assert.Equal(["Model", "Layout1", "Layout2"], image.Layouts.Names);
        Assert.Same(image.Entities, image.GetLayoutEntities("model"));
        Assert.Same(image.PaperSpaceEntities, image.GetLayoutEntities("Layout1"));
        Assert.Contains(image.PaperSpaceEntities, entity =>
            entity is CadViewport { ViewHeight: > 0, StatusFlags: not 0 });
    }

    [DrawingFact]
    public void Old_drawings_have_a_model_and_a_sheet()
    {
        CadImage image = Load("lwg__example_r12.dxf");
        Assert.Equal(["Model", "Layout1"], image.Layouts.Names);
        CadViewport viewport = Assert.IsType<CadViewport>(Assert.Single(image.PaperSpaceEntities));
        Assert.Equal(CadEntitySpaceMode.PaperSpace, viewport.SpaceMode);
    }

    private static CadImage Load(string file) => (CadImage)Image.Load(SharedDrawings.Dxf(file));

    private static string Count(CadImage image)
    {
        IEnumerable<string> names = image.BlockEntities.Items.SelectMany(block => block.Entities).Select(entity =>
            entity.TypeNameText);
        return string.Join(' ', names.GroupBy(name => name).OrderBy(group => group.Key, System.StringComparer.Ordinal)
            .Select(group => $"{group.Key}:{group.Count()}"));
    }
}
