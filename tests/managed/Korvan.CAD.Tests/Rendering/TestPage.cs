using System;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>A drawing put on a page of 100 × 100 pixels, one to a unit, its lower left corner at the origin.</summary>
internal sealed class TestPage : IDisposable
{
    /// <summary>The file of a font that is installed.</summary>
    internal const string OutlineFont = "LiberationSans-Regular.ttf";

    private readonly RasterPage _page;

    private TestPage(RasterPage page) => _page = page;

    /// <summary>The colour at a place of the drawing.</summary>
    internal Rgba this[int x, int y]
    {
        get
        {
            ReadOnlySpan<byte> pixel = _page.Row(_page.Height - 1 - y).Slice(x * 4, 4);
            return new Rgba(pixel[2], pixel[1], pixel[0], pixel[3]);
        }
    }

    internal static TestPage Of(CadImage drawing, Action<CadRasterizationOptions>? change = null)
    {
        // Invisible corners pin the extents to the page.
        Pin(drawing);
        var raster = new CadRasterizationOptions { PageWidth = 100, PageHeight = 100 };
        change?.Invoke(raster);
        return new TestPage(Rasterizer.Draw(drawing, new PngOptions { VectorRasterizationOptions = raster }));
    }

    /// <summary>A drawing whose texts have an outline font.</summary>
    internal static CadImage Drawing(params CadEntityBase[] entities)
    {
        var drawing = new CadImage();
        drawing.Styles[0].PrimaryFontName = OutlineFont;
        foreach (CadEntityBase entity in entities)
        {
            drawing.AddEntity(entity.Home is null ? entity : entity.Clone());
        }

        return drawing;
    }

    /// <summary>A filled square, easy to find in pixels.</summary>
    internal static CadSolid Square(double x, double y, double side, short color = 256, string layer = "0") => new()
    {
        FirstPoint = new Cad3DPoint(x, y, 0),
        SecondPoint = new Cad3DPoint(x + side, y, 0),
        ThirdPoint = new Cad3DPoint(x, y + side, 0),
        FourthPoint = new Cad3DPoint(x + side, y + side, 0),
        ColorId = color,
        LayerName = layer,
    };

    internal static CadInsertObject Insert(string block, double x = 0, double y = 0, short color = 256,
        string layer = "0") => new()
        {
            Name = block,
            InsertionPoint = new Cad3DPoint(x, y, 0),
            ColorId = color,
            LayerName = layer,
        };

    internal static CadBlockEntity AddBlock(CadImage drawing, string name, params CadEntityBase[] entities)
    {
        var block = new CadBlockEntity { Name = name };
        block.Entities.AddRange(entities);
        drawing.BlockEntities.Add(block);
        return block;
    }

    internal static CadLayerTable AddLayer(CadImage drawing, string name, short color)
    {
        var layer = new CadLayerTable { Name = name, ColorId = color };
        drawing.Layers.Add(layer);
        return layer;
    }

    /// <summary>The drawing's sheet of paper.</summary>
    internal static CadLayout Sheet(CadImage drawing)
    {
        foreach (CadLayout layout in drawing.Layouts)
        {
            if (layout.LayoutName != "Model")
            {
                return layout;
            }
        }

        var sheet = new CadLayout { LayoutName = "Sheet" };
        drawing.Layouts.Add(sheet);
        return sheet;
    }

    internal static string SaveTo(CadImage drawing, ImageOptionsBase options, string extension)
    {
        string file = Tools.TempFile(extension);
        using FileStream output = File.Create(file);
        drawing.Save(output, options);
        return file;
    }

    public void Dispose() => _page.Dispose();

    private static void Pin(CadImage drawing)
    {
        foreach (double at in new[] { 0.0, 100.0 })
        {
            var corner = new CadPoint { CenterPoint = new Cad3DPoint(at, at, 0), ColorValue = 0xffffff };
            drawing.AddEntity(corner);
        }
    }
}
