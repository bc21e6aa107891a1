using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;
using Xunit.Abstractions;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>What drawings lose that are saved as DWG of each release and as DXF, field by field: nothing but what the
/// table says. The files are the smallest that have all classes of the real drawings.</summary>
public partial class LossTests(ITestOutputHelper output)
{
    private const string AnyDwg = "AC10..";
    private const string Before2004 = "AC1015";
    private const string Before2007 = "AC101.";
    private const string Before2013 = "AC10(15|18|24)";
    private const string Before2018 = "AC10(15|18|24|27)";
    private const string NoFields = "no class knows its fields: its bits are written to the release that they are from";
    private const string NoTarget = "it leads to, belongs to or contains what is not written";
    private const string Newer = "the release does not have it";

    // Format, object or field, and reason.
    private static readonly (string Format, string What, string Reason)[] Exceptions =
    [
        (".*", "^(ACAM|ACG|ACI|ACM|AM_?|AMD|AMG|AMI|CAMS|CSAC|DM|MAPI|TCH_)\\w* \\w+ is missing", NoFields),
        (".*", "^\\w+ \\w+ is a CadAcadProxy(Entity|Object), not a Raw(Entity|Object)",
            "text files and other releases have its bits as a proxy"),
        (".*", "^BLOCK \\w+: other entities", NoTarget),
        (AnyDwg, "^(DICTIONARY|XRECORD|ACDBASSOC\\w+) \\w+(: another owner| is missing)", NoTarget),
        (AnyDwg, "^DICTIONARY \\w+: AcDbDictionary (3|350|360) ", NoTarget),
        (AnyDwg, "^(ACDBASSOC\\w+|ACAD_EVALUATION_GRAPH|HATCH) \\w+: \\w+ (330|360) ", NoTarget),
        (AnyDwg, "^VISUALSTYLE \\w+: AcDbVisualStyle ", "each release has a form of its own"),
        (AnyDwg, "^XRECORD \\w+: AcDbXrecord 280 ", "R13 and R14 do not state it"),
        (AnyDwg, "^VIEWPORT \\w+: the extended data ", "R13 and R14 have the fields in extended data"),
        (AnyDwg, "^LEADER \\w+: AcDbLeader 2[123]3 ", "R2010 no longer has it"),
        (AnyDwg, "^FIELD \\w+: AcDbField (4|9\\d) ", "the releases have it in other forms"),
        (AnyDwg, "^ACAD_TABLE \\w+: AcDbTable \\d+ ", "cells in the form of the release"),
        (AnyDwg, "^TABLESTYLE \\w+: AcDbTableStyle (280|90|91|1|63) ", "values came with 2007, no fill with 2010"),
        (Before2004, "^\\w+ \\w+: AcDb(Entity|Hatch|MText|Sun|Color|LayerTableRecord) 4[2-6]\\d ", Newer),
        (Before2004, "^\\w+ \\w+: AcDbEntity 62 ", "the nearest of the indexed colours"),
        (Before2004, "^HATCH \\w+: AcDbHatch (45\\d|46\\d|470|63) ", Newer),
        (Before2007, "^\\w+ \\w+: AcDb(Entity|LayerTableRecord|PlotSettings) (34\\d|7[678]|333) ", Newer),
        (Before2007, "^(DIMSTYLE|BLOCK_RECORD|MATERIAL|GEODATA|TABLECONTENT|FIELD|MTEXT) \\w+: ", Newer),
        (Before2007, "^ATT(DEF|RIB) \\w+: AcDbAttribute(Definition)? 280 ", Newer),
        (Before2007, "^(ACAD_TABLE|ARC_DIMENSION|HELIX|MESH|MULTILEADER|\\w+SURFACE) \\w+ is (a |missing)", Newer),
        (Before2007, "^(VPORT|VIEW|VIEWPORT) \\w+: \\w+ (292|348|361|421) ", Newer),
        (Before2013, "^LAYER \\w+: AcDbLayerTableRecord 348 ", Newer),
        (Before2007, "^3DSOLID \\w+: AcDb3dSolid 350 ", Newer),
        (Before2013, "^(3DSOLID|REGION|BODY) \\w+: AcDbModelerGeometry (2|290) ", Newer),
        (Before2007, "^(LIGHT|PDFUNDERLAY) \\w+ is missing", Newer),
        (Before2013, "^(MULTILEADER|MLEADERSTYLE) \\w+: \\w+ (295|298) ", Newer),
        (".*", "^(3DSOLID|REGION|BODY|\\w+SURFACE) \\w+: AcDbModelerGeometry (1|70) ", "text or binary data"),
        (Before2013, "^SPLINE \\w+: AcDbSpline ([1-3][0-3]|40|4[2-4]|7[0234]) ",
            "closed curves have control points before 2013"),
        (Before2018, "^ACDB(SECTION|DETAIL)VIEWSTYLE \\w+: AcDbModelDocViewStyle (300|90) ", Newer),
        ("DXF", "^SPLINE \\w+: AcDbSpline (72|73|40|10|20|30) ", "control points that follow from fit points"),
        ("DXF", "^XRECORD \\w+: (AcDbXrecord 10\\d\\d|the extended data) ", "text files take it for extended data"),
    ];

    [DrawingFact]
    public void NothingIsLostButWhatTheTableSays()
    {
        List<string> unknown = [];
        SortedDictionary<string, int> table = new(StringComparer.Ordinal);
        foreach (CadImage image in FilesOfAllClasses())
        {
            foreach (string format in new[] { "AC1015", "AC1018", "AC1024", "AC1027", "AC1032", "DXF" })
            {
                foreach (string line in Losses(image, format))
                {
                    string reason = Array.Find(Exceptions, known => Regex.IsMatch(format, known.Format)
                        && Regex.IsMatch(line, known.What)).Reason ?? "";
                    string row = $"{ClassOf(line)}\t{format}\t{reason}";
                    table[row] = table.GetValueOrDefault(row) + 1;
                    if (reason.Length == 0)
                    {
                        unknown.Add($"{format}: {line}");
                    }
                }
            }
        }

        output.WriteLine(string.Join('\n', table.Select(static row => $"{row.Key}\t{row.Value}")));
        Assert.Empty(unknown.Take(20));
    }

    private static IEnumerable<CadImage> FilesOfAllClasses()
    {
        HashSet<string> seen = [];
        foreach (string path in DwgSamples.Files().OrderBy(static path => new FileInfo(path).Length))
        {
            CadImage image = (CadImage)Image.Load(path, new LoadOptions { IgnoreErrors = true });
            int known = seen.Count;
            seen.UnionWith(DrawingWalk.All(image.Drawing).Select(static item => item.DxfName));
            if (seen.Count > known)
            {
                yield return image;
            }
        }
    }

    private static List<string> Losses(CadImage image, string format)
    {
        using MemoryStream file = new();
        image.Save(file, format == "DXF" ? new DxfOptions()
            : new DwgOptions { Version = Enum.Parse<CadAcadVersion>(format) });
        file.Position = 0;
        CadImage again = (CadImage)Image.Load(file, new LoadOptions());
        List<string> found = DrawingDifferences.Between(again.Drawing, image.Drawing, static _ => true);
        Dictionary<ulong, CadObjectWithAcisData> solids = SolidsOf(again);
        found.AddRange(SolidsOf(image).Values.Where(solid => solids.TryGetValue(solid.Handle, out var other)
            && !other.GetBinaryData().SequenceEqual(solid.GetBinaryData())).Select(static solid =>
                $"{solid.DxfName} {solid.Handle:X}: other data of the modeler"));
        return found;
    }

    private static Dictionary<ulong, CadObjectWithAcisData> SolidsOf(CadImage image) => DrawingWalk
        .Entities(image.Drawing).OfType<CadObjectWithAcisData>().ToDictionary(static solid => solid.Handle);

    private static string ClassOf(string line) => Field().Match(line) is { Success: true } field
        ? field.Groups[1].Value + " " + field.Groups[2].Value : line.Split(' ')[0];

    [GeneratedRegex("^(\\w+) \\w+: \\w+ (\\d+) is ")]
    private static partial Regex Field();
}
