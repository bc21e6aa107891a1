using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>The sections of real files: they decompress, their checksums hold, and variables and classes use them
/// up.</summary>
public class RealSectionTests
{
    [DrawingFact]
    public void All_sections_are_read_without_a_defect()
    {
        List<string> wrong = [];
        foreach (string path in DwgSamples.Files())
        {
            string name = Path.GetFileName(path);
            LoadOptions options = new() { IgnoreErrors = true };
            DwgFile file = DwgSamples.Open(File.ReadAllBytes(path), name, options);
            wrong.AddRange(options.Errors.Select(error => $"{name}: {error}"));
            wrong.AddRange(Check(file).Select(what => $"{name}: {what}"));
        }

        Assert.Empty(wrong);
    }

    // Values that shifted fields would not have.
    private static IEnumerable<string> Check(DwgFile file)
    {
        HeaderValues header = new();
        header.Exchange(new HeaderReader(file.Header, file.Release, file.Encoding));
        ulong[] known = [header.HandleOf("$CLAYER"), header.HandleOf("layerTable"), header.HandleOf("modelSpace"),
            header.HandleOf("continuous"), header.HandleOf("namedObjects")];
        if (known.Any(handle => file.Map.Find(handle) < 0))
        {
            yield return "references of the header lead nowhere";
        }

        if (file.Map.Handles[^1] >= header.HandleOf("$HANDSEED"))
        {
            yield return "a handle is not below the next free one";
        }

        if (file.Release >= 2000 && header["$VERSIONGUID"].Text is not { Length: 36 or 38 })
        {
            yield return $"the identifier of the version is '{header["$VERSIONGUID"].Text}'";
        }

        HeaderReader classes = new(file.Classes, file.Release, file.Encoding);
        if (ClassSection.Read(classes) is not { Count: > 0 } read || read.Any(item => item.ClassName.Length == 0)
            || classes.Remaining >= 8)
        {
            yield return "the classes are not used up";
        }
    }
}
