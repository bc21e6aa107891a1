using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Drawings with lines changed by chance: they are read, or refused by name; nothing else.</summary>
public class MutationTests
{
    private static readonly string[] Values =
        ["", "0", "-1", "1", "32767", "-32768", "2147483647", "1e308", "-1e308", "1e-320", "NaN", "FFFFFFFFFFFFFFFF",
            "{", "}", "ENDSEC", "LINE", "\\U+D800", "\u0080", "SECTION"];

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    public void Changed_lines_are_read_or_refused(int seed)
    {
        string[] lines = Everything().Split('\n');
        Random random = new(seed);
        for (int round = 0; round < 250; round++)
        {
            string text = Changed(lines, random);
            foreach (bool forgiving in new[] { false, true })
            {
                Exception? failure = Record.Exception(() =>
                    Use(DxfText.Load(text, new LoadOptions { IgnoreErrors = forgiving })));
                Assert.True(failure is null or ImageLoadException
                    or ImageSaveException, $"seed {seed}, round {round}, forgiving {forgiving}: {failure}");
            }
        }
    }

    private static void Use(DxfImage image)
    {
        _ = (image.Width, image.GetStrings(), image.UnknownEntityCount);
        DxfText.Save(image);
        PngOptions options = new()
        {
            VectorRasterizationOptions = new CadRasterizationOptions
            {
                PageWidth = 20,
                PageHeight = 20
            },
            Timeout = 20_000
        };
        image.Save(Stream.Null, options);
    }

    private static string Changed(string[] lines, Random random)
    {
        List<string> changed = [.. lines];
        for (int i = random.Next(1, 4); i > 0; i--)
        {
            int at = random.Next(changed.Count - 2);
            switch (random.Next(4))
            {
                case 0:
                    changed.RemoveRange(at & ~1, 2);
                    break;
                case 1:
                    changed.InsertRange(at & ~1, changed.GetRange(random.Next(changed.Count - 2) & ~1, 2));
                    break;
                default:
                    changed[at | 1] = Values[random.Next(Values.Length)];
                    break;
            }
        }

        return string.Join('\n', changed);
    }

    private static string Everything()
    {
        CadImage image = new();
        foreach (Type type in typeof(CadEntityBase).Assembly.GetExportedTypes().Where(type =>
            type.IsSubclassOf(typeof(CadEntityBase)) && !type.IsAbstract && type.GetConstructor([]) is not null
                && type != typeof(CadSeqend) && type != typeof(CadBlockEntity)
            && !type.Name.Contains("Vertex", StringComparison.Ordinal)
            && type != typeof(Korvan.CAD.FileFormats.Cad.CadObjects.Vertices.CadFaceRecord)))
        {
            image.AddEntity((CadEntityBase)Activator.CreateInstance(type)!);
        }

        CadHatch hatch = image.Entities.OfType<CadHatch>().Single();
        CadPolylineBoundaryPath outline = new();
        outline.Vertices.AddRange([new(0, 0), new(5, 0), new(5, 5)]);
        outline.Bulges.AddRange([0, 1, 0]);
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(outline));
        CadSpline spline = image.Entities.OfType<CadSpline>().First();
        spline.KnotValues.AddRange([0, 0, 0, 0, 1, 1, 1, 1]);
        spline.ControlPoints.AddRange([new(0, 0, 0), new(1, 2, 0), new(2, 2, 0), new(3, 0, 0)]);
        CadBlockEntity block = new() { Name = "B" };
        block.Entities.Add(new CadText { DefaultValue = "in a block" });
        image.BlockEntities.Add(block);
        image.AddEntity(new CadInsertObject { Name = "B", RotationAngle = 30, ColumnCount = 2, ColumnSpacing = 3 });
        return DxfText.Save(image).Replace("\r\n", "\n");
    }
}
