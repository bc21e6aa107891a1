using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Drawings of other programs, where they stand beside the checkout.</summary>
public class RealDrawingTests
{
    public static TheoryData<string> Files()
    {
        var data = new TheoryData<string>();
        IEnumerable<string> files = SharedDrawings.Root is null ? [] : SharedDrawings.AllDxf();
        foreach (string file in files.Order(StringComparer.Ordinal).DefaultIfEmpty("none at hand"))
        {
            data.Add(Path.GetFileName(file));
        }

        return data;
    }

    [DrawingTheory]
    [MemberData(nameof(Files))]
    public void Every_layout_becomes_a_page_that_others_read(string name)
    {
        using var drawing = (CadImage)Image.Load(SharedDrawings.Dxf(name));
        string[] layouts = [.. drawing.Layouts.Names];
        var raster = new CadRasterizationOptions { Layouts = layouts };
        string pdf = Picture.SaveTo(drawing, new PdfOptions { VectorRasterizationOptions = raster }, ".pdf");
        Assert.Matches($@"Pages:\s+{layouts.Length}\b", Tools.Run("pdfinfo", pdf));
        Tools.Run("pdftocairo", "-svg", pdf, Tools.TempFile(".svg"));
        Tools.Run("xmllint", "--noout", "--huge", Picture.SaveTo(drawing, new SvgOptions(), ".svg"));
        Tools.Run("xmllint", "--noout", "--huge",
            Picture.SaveTo(drawing, new SvgOptions { TextAsShapes = false }, ".svg"));
        using var output = new MemoryStream();
        drawing.Save(output, new PngOptions());
        Assert.True(output.Length > 100);
    }
}
