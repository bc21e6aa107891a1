using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>The variables of drawings of real files.</summary>
public class HeaderVariableTests
{
    // What files state beside the variables, and what they have as names only.
    private static readonly string[] NotInDrawing =
        ["currentViewport", "viewportEntityTable", "plotSettings", "plotStyles", "materials", "colors", "visualStyles"];

    // What changes with each save, what text files of some releases only have, and what has another case.
    private static readonly string[] Changing =
    [
        "$ACADMAINTVER", "$EXTMIN", "$EXTMAX", "$TDCREATE", "$TDUPDATE", "$TDUUPDATE", "$TDINDWG", "$TDUSRTIMER",
        "$HANDSEED", "$CMLSTYLE", "$ATTDIA", "$HANDLING", "$HYPERLINKBASE", "$XCLIPFRAME",
        "$INTERFEREOBJVS", "$INTERFEREVPVS",
    ];

    [DrawingFact]
    public void Variables_and_references_of_a_drawing_are_those_of_its_file()
    {
        List<string> wrong = [];
        foreach (string path in DwgSamples.Files())
        {
            byte[] data = File.ReadAllBytes(path);
            LoadOptions options = new() { IgnoreErrors = true };
            DwgFile file = DwgSamples.Open(data, path, options);
            HeaderValues expected = new();
            expected.Exchange(new HeaderReader(file.Header, file.Release, file.Encoding));
            CadDrawing drawing = DwgLoader.Load(data, path, file.Version, options);
            HeaderValues found = DwgContentBuilder.ValuesOf(drawing);
            wrong.AddRange(expected.Names
                .Where(name => (name.StartsWith('$') || found.Contains(name)) && !NotInDrawing.Contains(name))
                .Where(name => !AreSame(expected[name], found[name]))
                .Select(name => $"{Path.GetFileName(path)} {name}: {expected[name]} became {found[name]}"));
        }

        Assert.Empty(wrong);
    }

    // The same drawing as text, which another program wrote at another time.
    [DrawingTheory]
    [InlineData("lwg__example_r14")]
    [InlineData("lwg__example_2000")]
    [InlineData("lwg__example_2007")]
    [InlineData("lwg__example_2018")]
    public void Variables_are_those_of_the_text_file_of_the_same_drawing(string name)
    {
        using CadImage binary = (CadImage)Image.Load(DwgSamples.PathOf(name + ".dwg"), new() { IgnoreErrors = true });
        using CadImage text = (CadImage)Image.Load(SharedDrawings.Dxf(name + ".dxf"));
        IEnumerable<string> stated = text.Header.VariableNames.Where(variable => !Changing.Contains(variable));
        Assert.All(stated, variable => Assert.Equal(
            $"{variable} {Join(text.Header.GetTags(variable))}",
            $"{variable} {Join(binary.Header.GetTags(variable))}"));
    }

    private static bool AreSame(HeaderValue one, HeaderValue other) =>
        one.X == other.X && one.Y == other.Y && one.Z == other.Z && one.Handle == other.Handle
        && (one.Text ?? "") == (other.Text ?? "");

    private static string Join(List<CadCodeValue> tags) => string.Join(' ', tags.Select(static tag =>
        $"{tag.Attribute}={Round(tag.Value)}"));

    private static string Round(string value) =>
        double.TryParse(value, out double number) ? number.ToString("G12") : value.Trim();
}
