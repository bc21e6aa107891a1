using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Block references with a boundary: a filled square of 80, of which the boundary leaves a part.</summary>
public class ClipBoundaryTests
{
    private static readonly Rgba Shown = new(255, 0, 0);

    [Theory]
    [InlineData("rectangle", 15, 50)]
    [InlineData("polygon", 15, 20)]
    [InlineData("moved since it was clipped", 5, 50)]
    [InlineData("switched off", 80, 50)]
    public void A_reference_shows_what_is_inside_of_its_boundary(string name, int x, int y)
    {
        CadSpatialFilter filter = new();
        Cad2DPoint[] corners = name == "polygon" ? [new(10, 10), new(30, 10), new(10, 30)] : [new(10, 10), new(30, 70)];
        Array.ForEach(corners, filter.BoundaryPoints.Add);
        if (name.StartsWith("moved", StringComparison.Ordinal))
        {
            filter.InverseTransform[3] = -10;
        }

        filter.IsBoundaryShown = (short)(name == "switched off" ? 0 : 1);
        using TestPage page = TestPage.Of(Clipped(filter));
        Assert.Equal(Shown, page[x, y]);
        Assert.Equal(name == "switched off" ? Shown : Rgba.White, page[45, 50]);
        Assert.Equal(name is "polygon" ? Rgba.White : Shown, page[18, 45]);
    }

    private static CadImage Clipped(CadSpatialFilter filter)
    {
        CadInsertObject reference = TestPage.Insert("B");
        CadImage drawing = TestPage.Drawing(reference);
        TestPage.AddBlock(drawing, "B", TestPage.Square(0, 5, 85, 1));
        reference = (CadInsertObject)drawing.Entities[0];
        var filters = new CadDictionary();
        var extension = new CadDictionary();
        foreach (CadObjectBase item in new CadObjectBase[] { filter, filters, extension })
        {
            drawing.Objects.Add(item);
            item.ObjectHandle = $"F{drawing.Objects.Count:X4}";
        }

        filters.Set("SPATIAL", filter.ObjectHandle);
        extension.Set("ACAD_FILTER", filters.ObjectHandle);
        var group = new CadApplicationCodes(CadApplicationCodesContainerValues.ExtensionDictionary);
        group.Codes.Add(new CadCodeValue(360, extension.ObjectHandle));
        reference.ApplicationCodesContainer.ApplicationCodes.Add(group);
        return drawing;
    }
}
