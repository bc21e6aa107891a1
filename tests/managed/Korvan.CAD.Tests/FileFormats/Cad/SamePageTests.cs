using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Drawings of each release look as before after they were saved as another drawing.</summary>
public class SamePageTests
{
    // What is saved as release 2000 has the hook of its leader from other groups, which differ by rounding.
    private const string Rounded = "lwg__example_r14.dwg";

    [DrawingFact]
    public void Pages_of_text_files_stay_the_same() => Verify(SharedDrawings.AllDxf());

    [DrawingFact]
    public void Pages_of_databases_stay_the_same()
    {
        IEnumerable<string> files = Directory.EnumerateFiles(Path.Combine(SharedDrawings.Root!, "dwg"), "*.dwg");
        Verify(files.Where(static file => !file.EndsWith(Rounded, StringComparison.Ordinal)));
    }

    private static void Verify(IEnumerable<string> files)
    {
        List<string> changed = [];
        foreach (string file in files)
        {
            using Image image = Image.Load(file);
            string page = Page(image);
            foreach (ImageOptionsBase options in (ImageOptionsBase[])[new DxfOptions(), new DwgOptions()])
            {
                using MemoryStream saved = new();
                image.Save(saved, options);
                saved.Position = 0;
                using Image again = Image.Load(saved);
                if (Page(again) != page)
                {
                    changed.Add($"{Path.GetFileName(file)} by {options.GetType().Name}");
                }
            }
        }

        Assert.Empty(changed);
    }

    private static string Page(Image image)
    {
        StringBuilder pages = new();
        string? sheet = ((CadImage)image).Layouts.Names.FirstOrDefault(static name => name != "Model");
        foreach (string? layout in new[] { null, sheet }.Distinct())
        {
            CadRasterizationOptions page = new();
            page.Layouts = layout is null ? page.Layouts : [layout];
            using MemoryStream stream = new();
            image.Save(stream, new SvgOptions { VectorRasterizationOptions = page });
            pages.Append(Encoding.UTF8.GetString(stream.ToArray()));
        }

        return pages.ToString();
    }
}
