using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Variables of the header: by property, by name, and in files.</summary>
public class HeaderVariableTests
{
    /// <summary>The property, the variable, its group code and a value.</summary>
    public static readonly TheoryData<string, string, int, object> Variables = new()
    {
        { nameof(CadHeader.LtScale), "$LTSCALE", 40, 2.5 },
        { nameof(CadHeader.CurrentEntityLtScale), "$CELTSCALE", 40, 1e-7 },
        { nameof(CadHeader.TextSize), "$TEXTSIZE", 40, 3.5 },
        { nameof(CadHeader.InsUnits), "$INSUNITS", 70, 4 },
        { nameof(CadHeader.Measurement), "$MEASUREMENT", 70, 1 },
        { nameof(CadHeader.LUnits), "$LUNITS", 70, 2 },
        { nameof(CadHeader.LUPrec), "$LUPREC", 70, 6 },
        { nameof(CadHeader.AUnits), "$AUNITS", 70, 3 },
        { nameof(CadHeader.AUPrec), "$AUPREC", 70, 8 },
        { nameof(CadHeader.PdMode), "$PDMODE", 70, 34 },
        { nameof(CadHeader.PdSize), "$PDSIZE", 40, -5.0 },
        { nameof(CadHeader.FillMode), "$FILLMODE", 70, 0 },
        { nameof(CadHeader.AttMode), "$ATTMODE", 70, 2 },
        { nameof(CadHeader.PsLtScale), "$PSLTSCALE", 70, 0 },
        { nameof(CadHeader.TileMode), "$TILEMODE", 70, 0 },
        { nameof(CadHeader.MirrText), "$MIRRTEXT", 70, 1 },
        { nameof(CadHeader.LwDisplay), "$LWDISPLAY", 290, 1 },
        { nameof(CadHeader.CurrentLayer), "$CLAYER", 8, "W\u00e4nde" },
        { nameof(CadHeader.CurrentTextStyle), "$TEXTSTYLE", 7, "NOTES" },
        { nameof(CadHeader.CurrentLineType), "$CELTYPE", 6, "DASHED" },
        { nameof(CadHeader.CurrentDimStyle), "$DIMSTYLE", 2, "ISO-25" },
    };

    [Theory]
    [MemberData(nameof(Variables))]
    public void Properties_are_variables_that_files_keep(string property, string variable, int code, object value)
    {
        PropertyInfo info = typeof(CadHeader).GetProperty(property)!;
        CadImage drawing = new();
        drawing.Header.Remove(variable);
        info.SetValue(drawing.Header, value);
        CadCodeValue tag = Assert.Single(drawing.Header.GetTags(variable));
        Assert.Equal(code, tag.Attribute);
        CadHeader again = DxfText.Reload(drawing).Header;
        Assert.Equal(value, info.GetValue(again));
        Assert.Equal(code, again.GetTags(variable)[0].Attribute);
    }

    [Theory]
    [InlineData(nameof(CadHeader.ExtMin), "$EXTMIN", 3)]
    [InlineData(nameof(CadHeader.ExtMax), "$EXTMAX", 3)]
    [InlineData(nameof(CadHeader.InsBase), "$INSBASE", 3)]
    [InlineData(nameof(CadHeader.LimMin), "$LIMMIN", 2)] // points of the sheet are flat
    [InlineData(nameof(CadHeader.LimMax), "$LIMMAX", 2)]
    public void Points_have_as_many_coordinates_as_they_had(string property, string variable, int count)
    {
        string file = DxfText.Tags(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015", 9, variable, 10, 1, 20, 2)
            + (count == 3 ? DxfText.Tags(30, 3) : "") + DxfText.Tags(0, "ENDSEC") + DxfText.Entities()
            + DxfText.Tags(0, "EOF");
        CadImage drawing = DxfText.Load(file);
        PropertyInfo info = typeof(CadHeader).GetProperty(property)!;
        Assert.True(((Cad3DPoint)info.GetValue(drawing.Header)!).Is(1, 2, count == 3 ? 3 : 0));
        info.SetValue(drawing.Header, new Cad3DPoint(-4, 5.25, 6));
        Assert.Equal(count, drawing.Header.GetTags(variable).Count);
        drawing.Header.Remove(variable);
        info.SetValue(drawing.Header, new Cad3DPoint(-4, 5.25, 6));
        Assert.Equal(["-4", "5.25", "6"], drawing.Header.GetTags(variable).Select(tag => tag.Value));
    }

    [Fact]
    public void Variables_are_found_set_and_removed_by_name_in_any_case()
    {
        CadHeader header = new CadImage().Header;
        int before = header.VariableNames.Length;
        header.SetTag("$MINE", 70, "7");
        header.SetTag("$mine", 40, "8.5"); // keeps the group code that it has
        Assert.Equal(before + 1, header.VariableNames.Length);
        Assert.Equal((70, "8.5"), (header.GetTags("$Mine")[0].Attribute, header.GetString("$MINE")));
        Assert.Equal((8.5, 8), (header.GetDouble("$MINE"), header.GetInt("$MINE")));
        Assert.True(header.Remove("$MINE"));
        Assert.False(header.Remove("$MINE") || header.Contains("$MINE"));
        Assert.Equal(before, header.VariableNames.Length);
        Assert.Equal((0.0, 0, ""), (header.GetDouble("$MINE"), header.GetInt("$MINE"), header.GetString("$MINE")));
        Assert.True(header.GetPoint("$MINE").Is(0, 0, 0));
        Assert.Contains("$MINE", Assert.Throws<CadException>(() => header.GetTags("$MINE")).Message);
        Assert.Throws<ArgumentException>(() => header.SetTag("", 70, "7"));
        Assert.ThrowsAny<ArgumentException>(() => header.SetTag("$X", 70, null!));
        header.SetTag("$BAD", 40, "wide");
        Assert.Contains("'wide'", Assert.Throws<CadException>(() => header.GetDouble("$BAD")).Message);
        header.SetTag("$BAD", 40, "1e999");
        Assert.Throws<CadException>(() => header.GetInt("$BAD"));
    }

    [Fact]
    public void Releases_have_one_code_each_and_formats_of_their_own()
    {
        CadHeader header = new CadImage().Header;
        HashSet<FileFormat> formats = [];
        foreach (CadAcadVersion version in Enum.GetValues<CadAcadVersion>())
        {
            FileFormat format = DxfRelease.ToFileFormat(version);
            Assert.StartsWith("Dxf", format.ToString(), StringComparison.Ordinal);
            formats.Add(format);
            header.AcadVersion = version;
            Assert.Equal(version, header.AcadVersion);
        }

        Assert.Equal(13, formats.Count); // the last two share one
        CadAcadVersion[] written = [.. Enum.GetValues<DxfOutputVersion>().Select(DxfRelease.From)];
        Assert.Equal(written.Order(), written);
        Assert.Equal(written.Length, written.Distinct().Count());
    }
}
