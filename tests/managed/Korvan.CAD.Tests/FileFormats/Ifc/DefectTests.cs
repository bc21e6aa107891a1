using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Defects of building models: code, place and cause, whether they end the load or are collected.</summary>
public class DefectTests
{
    private const string Good = "#1=IFCDIRECTION((1.,0.));\n";

    private const string XmlStart = "<?xml version='1.0'?>\n"
        + "<x:iso_10303_28 xmlns:x='urn:iso.org:standard:10303:part(28):version(2):xmlschema:common'>\n"
        + "<uos xmlns='http://www.iai-tech.org/ifcXML/IFC2x3/FINAL'>\n";

    private const string XmlEnd = "</uos></x:iso_10303_28>\n";

    // The first record of a file is in line 8.
    public static TheoryData<string, int, int, string> DamagedRecords { get; } = new()
    {
        { "#5=IFCDIRECTION((1.,0.)\n", (int)LoadDefectCode.MissingToken, 9, "#5" }, // no ')', found in the next line
        { "#5=IFCDIRECTION((1. 0.));\n", (int)LoadDefectCode.MissingToken, 8, "#5" },
        { "#5=IFCLABEL('x);\n", (int)LoadDefectCode.UnterminatedValue, 8, "#5" },
        { "#5=IFCDIRECTION((.T));\n", (int)LoadDefectCode.UnterminatedValue, 8, "#5" },
        { "#5=IFCDIRECTION((@));\n", (int)LoadDefectCode.InvalidValue, 8, "#5" },
        { "#0=IFCDIRECTION((1.,0.));\n", (int)LoadDefectCode.InvalidId, 8, "" },
        { $"#5=IFCDIRECTION({new string('(', 100)});\n", (int)LoadDefectCode.NestedTooDeep, 8, "#5" },
        { "&SCOPE;\n", (int)LoadDefectCode.InvalidSection, 8, "" },
        { "#5=IFCALIEN((1.,0.));\n", (int)LoadDefectCode.UnknownEntity, 8, "#5" },
        { "#5=(IFCALIEN(1.)IFCWALL());\n", (int)LoadDefectCode.UnknownEntity, 8, "#5" },
        { "#5=IFCCURVE();\n", (int)LoadDefectCode.AbstractEntity, 8, "#5" },
        { "#5=IFCDIRECTION();\n", (int)LoadDefectCode.AttributeCount, 8, "#5" },
        { Good + Good, (int)LoadDefectCode.DuplicateId, 8, "#1" },
        { Good + "\n#5=IFCDIRECTION((#77));\n", (int)LoadDefectCode.UnresolvedReference, 10, "#5" },
    };

    public static TheoryData<string, int, int> DamagedFiles { get; } = new()
    {
        { IfcText.File(Good, "IFC9"), (int)LoadDefectCode.UnknownSchema, 0 },
        { IfcText.File(Good).Replace("HEADER;\n", ""), (int)LoadDefectCode.MissingToken, 2 },
        { IfcText.File(Good).Replace("DATA;\n", "NOTES;\n"), (int)LoadDefectCode.InvalidSection, 7 },
        { IfcText.File(Good)[..^40], (int)LoadDefectCode.Truncated, 8 },
        { XmlStart + "<IfcAlien/>" + XmlEnd, (int)LoadDefectCode.UnknownEntity, 4 },
        { XmlStart + "\n<IfcWall><Colour/></IfcWall>" + XmlEnd, (int)LoadDefectCode.UnknownAttribute, 5 },
        { XmlStart + "<IfcCircle><Radius>wide</Radius></IfcCircle>" + XmlEnd, (int)LoadDefectCode.WrongType, 4 },
        { XmlStart + "<IfcCircle><Position/></IfcCircle>" + XmlEnd, (int)LoadDefectCode.WrongType, 4 },
        { XmlStart + "\n\n<IfcWall>" + XmlEnd, (int)LoadDefectCode.InvalidXml, 6 },
    };

    [Theory]
    [MemberData(nameof(DamagedRecords))]
    public void Records_have_defects_with_code_line_and_number(string records, int code, int line, string record)
    {
        LoadPlace place = new("test.ifc", line, record);
        LoadDefect defect = Refused(IfcText.File(records));
        Assert.Equal(((LoadDefectCode)code, place), (defect.Code, defect.Place));

        LoadOptions options = new() { IgnoreErrors = true };
        IfcText.Load(records, options);
        Assert.Equal(defect, options.Defects[0]);
        Assert.Equal(options.Errors, options.Defects.Select(static one => one.ToString()));
    }

    [Theory]
    [MemberData(nameof(DamagedFiles))]
    public void Files_have_defects_with_code_and_line(string text, int code, int line)
    {
        LoadDefect defect = Refused(text);
        Assert.Equal(((LoadDefectCode)code, line), (defect.Code, defect.Place.Line));
        Assert.StartsWith("'test.ifc'", defect.ToString());
    }

    [Fact]
    public void Defects_of_one_load_do_not_stay_for_the_next()
    {
        LoadOptions options = new() { IgnoreErrors = true };
        IfcText.Load("#5=IFCCURVE();\n", options);
        options.Errors.Clear();
        IfcText.Load("#5=IFCALIEN();\n", options);
        Assert.Equal(LoadDefectCode.UnknownEntity, Assert.Single(options.Defects).Code);
        IfcText.Load("#5=IFCCURVE();\n", options);
        Assert.Equal(2, options.Defects.Count);
    }

    [Theory]
    [InlineData("#5=IFCALIEN('IFCWALL(',(1.,0.));\n", "#5=!IFCALIEN('IFCWALL(',(1.,0.));")]
    [InlineData("#5= /* IFCX(1) */ IFCALIEN(IFCLABEL('x'));\n", "#5= /* IFCX(1) */ !IFCALIEN(IFCLABEL('x'));")]
    [InlineData("#5=(IFCALIEN(1.)IFCROOT('it''s'));\n", "#5=(!IFCALIEN(1.)IFCROOT('it''s'));")]
    [InlineData("#5=IFCROOT($,$,$,$);\n", "#5=!IFCROOT($,$,$,$);")] // abstract
    [InlineData("#5=9X();\n", "#5=!_9X();")]
    [InlineData("#5=!();\n#6=IFCVERTEXPOINT(#7);\n", "#5=!_!();\n#6=IFCVERTEXPOINT($);")]
    public void Entities_outside_of_the_schema_are_written_as_user_defined_ones(string records, string written)
    {
        string saved = IfcText.Saved(IfcText.Load(records, new LoadOptions { IgnoreErrors = true }));
        Assert.Contains(written, saved);
        Assert.Equal(saved, IfcText.Saved(IfcText.LoadFile(saved)));
    }

    private static LoadDefect Refused(string text)
    {
        using MemoryStream stream = new(Encoding.Latin1.GetBytes(text));
        ImageLoadException refusal = Assert.Throws<ImageLoadException>(
            () => Image.Load(stream, "test.ifc", new LoadOptions()));
        LoadDefect defect = refusal.Defect!;
        Assert.StartsWith(defect.ToString(), refusal.Message);
        return defect;
    }
}
