using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Tests.FileFormats.Ifc;
using Korvan.CAD.Tests.Raster;
using Korvan.CAD.Tests.Rendering;

namespace Korvan.CAD.Tests.Options;

/// <summary>Images with something that every option affects.</summary>
internal static class OptionSamples
{
    private static readonly Lazy<string> Folder = new(static () =>
    {
        string folder = Directory.CreateTempSubdirectory("korvan-").FullName;
        using RasterFileImage photo = Samples.Of(3, 2, static (x, y) => Samples.Rgb(x * 120, y * 250, 90));
        photo.Save(Path.Combine(folder, "photo.png"));
        return folder;
    });

    internal static readonly IReadOnlyDictionary<string, Func<Image>> All = new Dictionary<string, Func<Image>>
    {
        ["drawing"] = Drawing,
        ["metafile"] = Metafile,
        ["image"] = ImageOfFrames,
        ["model"] = static () => IfcText.Load("#1=IFCCARTESIANPOINT((1.,2.));\n"),
    };

    private static CadImage Drawing()
    {
        CadImage drawing = TestPage.Drawing(
            new CadLine { FirstPoint = P(3, 4), SecondPoint = P(61, 37), LineWeight = 211, ColorId = 1 },
            new CadLine { FirstPoint = P(3, 70), SecondPoint = P(97, 66), LineTypeName = "Gaps", LineWeight = 50 },
            new CadCircle { CenterPoint = P(70, 40), Radius = 19, Thickness = 30, LayerName = "Walls" },
            new CadLine { FirstPoint = P(5, 60), SecondPoint = P(95, 60), LayerName = "Notes to self" },
            new CadText { DefaultValue = "Office g%", TextHeight = 9.3, FirstAlignment = P(8.3, 40.7), ColorId = 5 },
            Face(P(0, 0), P(30, 0, 10), P(30, 20, 10), P(0, 20, 5), 3, "0"),
            Face(P(40, 50), P(50, 50), P(50, 58), P(40, 58), 7, "0"),
            Face(P(55, 50), P(60, 50), P(60, 55), P(55, 55), 256, "Notes to self"),
            Lines(),
            new CadRasterImage
            {
                InsertionPoint = P(40, 5),
                VectorU = P(6.3, 1.1),
                VectorV = P(-1.1, 6.3),
                ImageSize = new Cad2DPoint(3, 2),
                ImageDefReference = "77",
            });
        drawing.Header.LwDisplay = 1;
        drawing.LineTypes.Add(new CadLineTypeTableObject { Name = "Gaps", Pattern = { 6, -4 } });
        TestPage.AddLayer(drawing, "Walls", 6);
        TestPage.AddLayer(drawing, "Notes to self", 2).PlotFlag = 0;
        CadLayout sheet = TestPage.Sheet(drawing);
        (sheet.LayoutName, sheet.PaperWidth, sheet.PaperHeight) = ("Sheet", 60, 40);
        drawing.PaperSpaceEntities.Add(new CadLine { FirstPoint = P(5, 5), SecondPoint = P(90, 70) });
        drawing.FilePath = Path.Combine(Folder.Value, "plan.dxf");
        drawing.Objects.Add(new CadRasterImageDef { FileName = "photo.png", ObjectHandle = "77" });
        return drawing;
    }

    private static Image Metafile()
    {
        using CadImage drawing = Drawing();
        var file = new MemoryStream();
        var page = new CadRasterizationOptions { PageWidth = 100, PageHeight = 80 };
        drawing.Save(file, new CgmOptions { VectorRasterizationOptions = page });
        file.Position = 0;
        return Image.Load(file);
    }

    private static Cad3DFace Face(
        Cad3DPoint first, Cad3DPoint second, Cad3DPoint third, Cad3DPoint fourth, short color, string layer)
    {
        return new Cad3DFace
        {
            FirstPoint = first,
            SecondPoint = second,
            ThirdPoint = third,
            FourthPoint = fourth,
            ColorId = color,
            LayerName = layer,
        };
    }

    private static CadHatch Lines()
    {
        var square = new CadPolylineBoundaryPath();
        square.Vertices.AddRange([new(72, 2), new(98, 2), new(98, 18), new(72, 18)]);
        var hatch = new CadHatch { SolidFillFlag = 0, PatternName = "LINES", ColorId = 4 };
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(square));
        hatch.PatternDefinitions.Add(new CadHatchPatternData { LineAngle = 45, LineOffset = new(-3, 3) });
        return hatch;
    }

    private static RasterFileImage ImageOfFrames()
    {
        DecodedFrame Frame(int shade)
        {
            var grid = new PixelGrid(21, 17);
            for (int y = 0; y < grid.Height; y++)
            {
                for (int x = 0; x < grid.Width; x++)
                {
                    grid.WritableRow(y)[x] = Samples.Rgb(x * 12, y * 15, shade, x > 18 ? 100 : 255);
                }
            }

            return new DecodedFrame { Pixels = grid };
        }

        return new RasterFileImage(new DecodedFile { Format = FileFormat.Png, Frames = [Frame(40), Frame(160)] });
    }

    private static Cad3DPoint P(double x, double y, double z = 0) => new(x, y, z);
}
