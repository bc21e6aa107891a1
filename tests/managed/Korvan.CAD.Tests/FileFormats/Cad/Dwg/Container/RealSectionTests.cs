using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>The sections of real files: they decompress, and their checksums hold.</summary>
public class RealSectionTests
{
    [DrawingFact]
    public void All_sections_are_read_without_a_defect()
    {
        List<string> wrong = [];
        foreach (string path in DwgSamples.Files())
        {
            LoadOptions options = new() { IgnoreErrors = true };
            DwgFile file = DwgSamples.Open(path, options);
            wrong.AddRange(options.Errors.Select(error => $"{Path.GetFileName(path)}: {error}"));
            if (file.Header.IsEmpty || file.Classes.IsEmpty || file.Map.Count == 0 || file.Objects.Length == 0)
            {
                wrong.Add($"{Path.GetFileName(path)}: an empty section");
            }
        }

        Xunit.Assert.Empty(wrong);
    }
}
