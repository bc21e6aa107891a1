using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>The data of modelers as text and in binary form, and files of all releases with them.</summary>
public class AcisConversionTests
{
    private static readonly string[] Header = ["700 4 1 0 ", "3 CAD 8 ACIS 7.0 0  ", "25.4 1e-06 1e-10 "];

    // What flags, numbers and directions are follows from the record; no keyword or point tells it in both forms.
    [Theory]
    [InlineData("face $-1 -1 $-1 $3 forward double in #", "$-1 -1 $-1 $3 F T T")]
    [InlineData("face $-1 -1 $-1 $3 reversed single #", "$-1 -1 $-1 $3 T F")]
    [InlineData("edge $-1 -1 $-1 $2 0 $4 1 $5 $7 forward @7 unknown #", "$-1 -1 $-1 $2 0.0 $4 1.0 $5 $7 F @unknown")]
    [InlineData("point $-1 -1 $-1 1 2 3 #", "$-1 -1 $-1 P1,2,3")]
    [InlineData("straight-curve $-1 -1 $-1 0 0 0 0 0 1 F 2 I #", "$-1 -1 $-1 P0,0,0 V0,0,1 T 2.0 F")]
    [InlineData("sphere-surface $-1 -1 $-1 0 0 0 5 1 0 0 0 0 1 reverse_v I I I I #",
        "$-1 -1 $-1 P0,0,0 5.0 V1,0,0 V0,0,1 T F F F F")]
    [InlineData("transform $-1 1 1 0 0 0 1 0 0 0 1 7 8 9 2 rotate no_reflect shear #",
        "$-1 1 V1,0,0 V0,1,0 V0,0,1 V7,8,9 2.0 T F T")]
    [InlineData("intcurve-curve $-1 -1 $-1 forward { exactcur full nubs 1 open 2 0 1 1 1 1 2 3 4 5 6 0 null_surface "
        + "null_surface nullbs nullbs I F 1 0 2 0 1 0 F 1 I } I I #",
        "$-1 -1 $-1 F { exactcur e0 nubs 1 e0 2 0.0 1 1.0 1 1.0 2.0 3.0 4.0 5.0 6.0 0.0 null_surface null_surface "
        + "nullbs nullbs F T 1.0 0 2 0.0 1.0 0 T 1.0 F } F F")]
    [InlineData("spline-surface $-1 -1 $-1 forward { exactsur full nurbs 1 1 both open periodic none high 2 2 0 1 1 1 "
        + "0 1 1 1 0 0 0 1 1 0 0 1 0 1 0 1 1 1 0 1 0 0 0 0 0 0 0 F 0 F 1 I I } I I I I #",
        "$-1 -1 $-1 F { exactsur e0 nurbs 1 1 e3 e0 e2 e0 e2 2 2 0.0 1 1.0 1 0.0 1 1.0 1 0.0 0.0 0.0 1.0 1.0 0.0 0.0 "
        + "1.0 0.0 1.0 0.0 1.0 1.0 1.0 0.0 1.0 0.0 0 0 0 0 0 0 T 0.0 T 1.0 F F } F F F F")]
    [InlineData("int64_attrib-name_attrib-gen-attrib $-1 -1 $-1 $-1 $2 copy custom ignore copy @3 a b 5000000000 #",
        "$-1 -1 $-1 $-1 $2 e2 e4 e1 e2 @a b L5000000000")]
    [InlineData("unknown-attrib $-1 -1 $-1 1.5 2.0 7 word @1 # #", "$-1 -1 $-1 1.5 2.0 7 word @#")] // by its form
    public void RecordsHaveTheSameValuesInBothForms(string record, string values)
    {
        byte[] binary = AcisForms.ToBinary([.. Header, record]);
        AcisFile file = SabReader.Read(binary, out bool isWhole)!;

        Assert.True(isWhole);
        Assert.Equal(values, string.Join(' ', file.Records[0].Tokens.Select(Written)));
        Assert.Equal("700 1 1 0 ", SatText.Decipher(AcisForms.ToText(binary)[0]));
        Assert.Equal(Header[1..], AcisForms.ToText(binary).ConvertAll(SatText.Decipher)[1..3]);
        Assert.Equal(record, SatText.Decipher(AcisForms.ToText(binary)[3]));
    }

    [Fact]
    public void OldFlagsAreNumbersAndNewEndsNameTheSuccessor()
    {
        string[] old = ["106 1 1 0 ", "face $-1 $-1 0 1 0 #", "plane-surface $-1 0 0 0 0 0 1 1 0 0 1 0 0 1 5 0 #"];
        byte[] binary = AcisForms.ToBinary(old);
        byte[] recent = AcisForms.ToBinary(["22300 1 1 4", .. Header[1..], "body $-1 -1 $-1 $-1 $-1 $-1 #"]);

        Assert.Equal(old[1..], AcisForms.ToText(binary).ConvertAll(SatText.Decipher)[1..]);
        Assert.StartsWith("ACIS BinaryFile", Encoding.Latin1.GetString(binary));
        Assert.EndsWith("\u000E\u0004ACIS\r\u0004data", Encoding.Latin1.GetString(binary));
        Assert.StartsWith("ASM BinaryFile4", Encoding.Latin1.GetString(recent));
        Assert.EndsWith("\u000E\u0003ASM\r\u0004data", Encoding.Latin1.GetString(recent));
    }

    [Fact]
    public void DamagedDataHaveNoOtherForm()
    {
        byte[] sound = AcisForms.ToBinary([.. Header, "face $-1 -1 $-1 $3 forward double in #"]);
        Random random = new(700);
        for (int round = 0; round < 2000; round++)
        {
            byte[] damaged = [.. sound];
            damaged[random.Next(damaged.Length)] = (byte)random.Next(256);
            AcisForms.ToBinary(AcisForms.ToText(damaged));
        }

        Assert.All(
            Enumerable.Range(0, sound.Length), length => Assert.Empty(AcisForms.ToText(sound.AsSpan(0, length))));
        Assert.Empty(AcisForms.ToBinary(["no header", "", "", "body $-1 #"]));
    }

    [DrawingFact]
    public void TextOfBinaryDataIsWhatOtherProgramsWrite()
    {
        using var text = (CadImage)Image.Load(SharedDrawings.Dxf("lwg__example_2007.dxf"));
        using var binary = (CadImage)Image.Load(SharedDrawings.Dwg("lwg__example_2010.dwg"));
        Dictionary<ulong, CadObjectWithAcisData> others = SolidsOf(binary);

        Assert.Equal(3, others.Count);
        Assert.All(SolidsOf(text), solid => Assert.Equal(
            TokensOf(solid.Value.AcisData), TokensOf(others[solid.Key].GetTextData())));
    }

    [DrawingTheory]
    [InlineData("acs__sample_base.dwg")] // 2018
    [InlineData("lc__assoc_surface_r2004.dwg")]
    [InlineData("lwg__2000_Cone.dwg")]
    public void SolidsHaveTheSameDataInAllReleases(string name)
    {
        using var source = (CadImage)Image.Load(SharedDrawings.Dwg(name), new LoadOptions { IgnoreErrors = true });
        Dictionary<ulong, CadObjectWithAcisData> solids = SolidsOf(source);
        ImageOptionsBase[] formats =
        [
            new DwgOptions { Version = CadAcadVersion.AC1018 }, new DwgOptions { Version = CadAcadVersion.AC1024 },
            new DwgOptions { Version = CadAcadVersion.AC1027 }, new DwgOptions { Version = CadAcadVersion.AC1032 },
            new DxfOptions { Version = DxfOutputVersion.R2010 }, new DxfOptions { Version = DxfOutputVersion.R2018 },
        ];
        Assert.NotEmpty(solids);
        ImageOptionsBase[] old =
            [new DwgOptions { Version = CadAcadVersion.AC1015 }, new DxfOptions { Version = DxfOutputVersion.R2000 }];
        foreach (ImageOptionsBase format in name.Contains("surface") ? formats : [.. formats, .. old])
        {
            using MemoryStream file = new();
            source.Save(file, format);
            file.Position = 0;
            using var again = (CadImage)Image.Load(file, new LoadOptions());
            Dictionary<ulong, CadObjectWithAcisData> saved = SolidsOf(again);
            Assert.Equal(solids.Keys.Order(), saved.Keys.Order());
            Assert.All(solids, solid =>
            {
                Assert.Equal(solid.Value.GetType(), saved[solid.Key].GetType());
                Assert.Equal(solid.Value.GetBinaryData(), saved[solid.Key].GetBinaryData());
            });
        }
    }

    private static Dictionary<ulong, CadObjectWithAcisData> SolidsOf(CadImage image) =>
        DrawingWalk.Entities(image.Drawing).OfType<CadObjectWithAcisData>().ToDictionary(static solid => solid.Handle);

    private static List<string> TokensOf(List<string> lines) =>
        SatText.Parse(lines)!.Records.ConvertAll(static record => string.Join(' ', record.Tokens.Select(
            static token => double.TryParse(token, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
                ? value.ToString("R", CultureInfo.InvariantCulture) : token)));

    private static string Written(AcisToken token) => token.Kind switch
    {
        AcisKind.Pointer => $"${token.Number}",
        AcisKind.Integer => $"{token.Number}",
        AcisKind.LongInteger => $"L{token.Number}",
        AcisKind.Enumeration => $"e{token.Number}",
        AcisKind.Double => token.Value.X.ToString("0.0##", CultureInfo.InvariantCulture),
        AcisKind.Position => FormattableString.Invariant($"P{token.Value.X},{token.Value.Y},{token.Value.Z}"),
        AcisKind.Vector => FormattableString.Invariant($"V{token.Value.X},{token.Value.Y},{token.Value.Z}"),
        AcisKind.String => "@" + token.Text,
        AcisKind.True => "T",
        AcisKind.False => "F",
        AcisKind.Open => "{",
        AcisKind.Close => "}",
        _ => token.Text,
    };
}
