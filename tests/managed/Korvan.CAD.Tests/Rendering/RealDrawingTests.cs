using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Drawings of other programs, where they are at hand: the folder stands in KORVAN_DRAWINGS.</summary>
public class RealDrawingTests
{
    private static readonly string? Folder = Environment.GetEnvironmentVariable("KORVAN_DRAWINGS");

    public static TheoryData<string> Files()
    {
        var data = new TheoryData<string>();
        IEnumerable<string> files = Folder == null ? [] : Directory.EnumerateFiles(Path.Combine(Folder, "dxf"), "*.dxf*");
        foreach (string file in files.Order(StringComparer.Ordinal).DefaultIfEmpty("none at hand"))
        {
            data.Add(Path.GetFileName(file));
        }

        return data;
    }

    [WhereDrawingsAre]
    [MemberData(nameof(Files))]
    public void Every_layout_becomes_a_page_that_others_read(string name)
    {
        using var drawing = (CadImage)Image.Load(Path.Combine(Folder!, "dxf", name));
        string[] layouts = [.. drawing.Layouts.Names];
        var raster = new CadRasterizationOptions { Layouts = layouts };
        string pdf = Picture.SaveTo(drawing, new PdfOptions { VectorRasterizationOptions = raster }, ".pdf");
        Assert.Matches($@"Pages:\s+{layouts.Length}\b", Tools.Run("pdfinfo", pdf));
        Tools.Run("pdftocairo", "-svg", pdf, Tools.TempFile(".svg"));
        Tools.Run("xmllint", "--noout", "--huge", Picture.SaveTo(drawing, new SvgOptions(), ".svg"));
        Tools.Run("xmllint", "--noout", "--huge", Picture.SaveTo(drawing, new SvgOptions { TextAsShapes = false }, ".svg"));
        using var output = new MemoryStream();
        DrawingExporter.Export(drawing, new PngOptions(), output);
        Assert.True(output.Length > 100);
    }

    private sealed class WhereDrawingsAreAttribute : TheoryAttribute
    {
        public WhereDrawingsAreAttribute()
        {
            if (Folder == null)
            {
                Skip = "KORVAN_DRAWINGS names no folder of drawings.";
            }
        }
    }
}
