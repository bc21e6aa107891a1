using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The appearance of section views: their lines, arrows, labels and hatches.</summary>
[CadSequence]
[CadObject("ACDBSECTIONVIEWSTYLE", Subclass = "AcDbModelDocViewStyle")]
[CadBits(
    "BS ModelDocVersion", "T StyleName", "B IsModified", "2018+ T DisplayName", "2018+ BL ViewStyleFlags", "BS Version",
    "BL Flags", "H IdentifierStyleHandle", "CMC IdentifierColorId IdentifierColorValue", "BD IdentifierHeight",
    "H ArrowStartSymbolHandle", "H ArrowEndSymbolHandle", "CMC ArrowColorId ArrowColorValue", "BD ArrowSize",
    "T ExcludedCharacters", "BD ArrowExtensionLength", "H PlaneLineTypeHandle", "BL PlaneLineWeight",
    "CMC PlaneColorId PlaneColorValue", "H BendLineTypeHandle", "BL BendLineWeight", "CMC BendColorId BendColorValue",
    "BD BendLineLength", "BD EndLineLength", "H LabelStyleHandle", "CMC LabelColorId LabelColorValue", "BD LabelHeight",
    "BL LabelAttachment", "BD LabelOffset", "BL LabelAlignment", "T LabelPattern", "CMC HatchColorId HatchColorValue",
    "CMC HatchBackgroundColorId HatchBackgroundColorValue", "T HatchPattern", "BD HatchScale", "BL HatchTransparency",
    "B HideHatching", "B ReverseHatching", "BL IdentifierPosition", "BD IdentifierOffset", "BL ArrowPosition",
    "BD EndLineOvershoot", "BD[BL] HatchAngles")]
public partial class CadSectionViewStyle : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSectionViewStyle()
    {
    }

    /// <summary>Gets or sets the version of the data that view styles have in common. Group code 70.</summary>
    [CadShort(70)]
    public short ModelDocVersion { get; set; }

    /// <summary>Gets or sets the description. Group code 3.</summary>
    [CadString(3)]
    public string StyleName { get; set; } = "";

    /// <summary>Gets or sets whether views have to be computed again. Group code 290.</summary>
    [CadBool(290)]
    public bool IsModified { get; set; }

    /// <summary>Gets or sets the name that is shown. Group code 300.</summary>
    [CadString(300, Optional = true, Since = 2018)]
    public string DisplayName { get; set; } = "";

    /// <summary>Gets or sets flags of the style. Group code 90.</summary>
    [CadInt(90, Optional = true, Since = 2018)]
    public int ViewStyleFlags { get; set; }

    /// <summary>Gets or sets the version of the data. Group code 70.</summary>
    [CadShort(70)]
    [CadSubclass("AcDbSectionViewStyle")]
    public short Version { get; set; }

    /// <summary>Gets or sets the start of the general properties. Group code 71.</summary>
    [CadShort(71)]
    internal short FirstGroup { get; set; }

    /// <summary>Gets or sets flags of what is shown. Group code 90.</summary>
    [CadInt(90)]
    public int Flags { get; set; } = 102;

    /// <summary>Gets or sets the start of the properties of identifiers and arrows. Group code 71.</summary>
    [CadShort(71)]
    internal short SecondGroup { get; set; } = 1;

    /// <summary>Gets or sets the handle of the text style of identifiers in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string IdentifierStyleHandle { get; set; } = "0";

    /// <summary>Gets or sets the index of the colour of identifiers. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short IdentifierColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of identifiers as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int IdentifierColorValue { get; set; } = -1;

    /// <summary>Gets or sets the height of identifiers, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double IdentifierHeight { get; set; } = 5;

    /// <summary>Gets or sets the handle of the block of the first arrow in hexadecimal; 0 for the default. Group code
    /// 340.</summary>
    [CadHandle(340)]
    public string ArrowStartSymbolHandle { get; set; } = "0";

    /// <summary>Gets or sets the handle of the block of the second arrow in hexadecimal; 0 for the default. Group code
    /// 340.</summary>
    [CadHandle(340)]
    public string ArrowEndSymbolHandle { get; set; } = "0";

    /// <summary>Gets or sets the index of the colour of arrows. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short ArrowColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of arrows as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int ArrowColorValue { get; set; } = -1;

    /// <summary>Gets or sets the size of arrows, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double ArrowSize { get; set; } = 5;

    /// <summary>Gets or sets the characters that identifiers do not have. Group code 300.</summary>
    [CadString(300)]
    public string ExcludedCharacters { get; set; } = "I, O, Q, S, X, Z";

    /// <summary>Gets or sets the length of lines beyond arrows, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double ArrowExtensionLength { get; set; } = 10;

    /// <summary>Gets or sets where identifiers are: 0 at the end of the arrow, 1 beside it. Group code 90.</summary>
    [CadInt(90)]
    public int IdentifierPosition { get; set; }

    /// <summary>Gets or sets the distance of identifiers from arrows, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double IdentifierOffset { get; set; } = 2.5;

    /// <summary>Gets or sets where arrows are: 0 inside, 1 outside. Group code 90.</summary>
    [CadInt(90)]
    public int ArrowPosition { get; set; }

    /// <summary>Gets or sets the start of the properties of lines. Group code 71.</summary>
    [CadShort(71)]
    internal short ThirdGroup { get; set; } = 2;

    /// <summary>Gets or sets the handle of the line type of cutting planes in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string PlaneLineTypeHandle { get; set; } = "0";

    /// <summary>Gets or sets the line weight of cutting planes in hundredths of a millimetre. Group code 90.</summary>
    [CadInt(90)]
    public int PlaneLineWeight { get; set; } = 25;

    /// <summary>Gets or sets the index of the colour of cutting planes. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short PlaneColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of cutting planes as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int PlaneColorValue { get; set; } = -1;

    /// <summary>Gets or sets the handle of the line type of ends and bends in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string BendLineTypeHandle { get; set; } = "0";

    /// <summary>Gets or sets the line weight of ends and bends in hundredths of a millimetre. Group code 90.</summary>
    [CadInt(90)]
    public int BendLineWeight { get; set; } = 50;

    /// <summary>Gets or sets the index of the colour of ends and bends. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short BendColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of ends and bends as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int BendColorValue { get; set; } = -1;

    /// <summary>Gets or sets the length of lines at bends, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double BendLineLength { get; set; } = 5;

    /// <summary>Gets or sets the overshoot of lines at ends, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double EndLineOvershoot { get; set; } = 2.5;

    /// <summary>Gets or sets the length of lines at ends, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double EndLineLength { get; set; } = 5;

    /// <summary>Gets or sets the start of the properties of labels. Group code 71.</summary>
    [CadShort(71)]
    internal short FourthGroup { get; set; } = 3;

    /// <summary>Gets or sets the handle of the text style of labels in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string LabelStyleHandle { get; set; } = "0";

    /// <summary>Gets or sets the index of the colour of labels. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short LabelColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of labels as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int LabelColorValue { get; set; } = -1;

    /// <summary>Gets or sets the height of labels, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double LabelHeight { get; set; } = 5;

    /// <summary>Gets or sets where labels are: 0 above the view, 1 below. Group code 90.</summary>
    [CadInt(90)]
    public int LabelAttachment { get; set; }

    /// <summary>Gets or sets the distance of labels from the view, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double LabelOffset { get; set; } = 15;

    /// <summary>Gets or sets the alignment of labels: 0 left, 1 centre, 2 right. Group code 90.</summary>
    [CadInt(90)]
    public int LabelAlignment { get; set; } = 1;

    /// <summary>Gets or sets the text of labels with its fields. Group code 300.</summary>
    [CadString(300)]
    public string LabelPattern { get; set; } = "";

    /// <summary>Gets or sets the start of the properties of hatches. Group code 71.</summary>
    [CadShort(71)]
    internal short FifthGroup { get; set; } = 4;

    /// <summary>Gets or sets the index of the colour of hatches. Group code 62.</summary>
    [CadColor(62, Since = 2004)]
    public short HatchColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour of hatches as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int HatchColorValue { get; set; } = -1;

    /// <summary>Gets or sets the index of the colour of the background of hatches; 257 for none. Group code
    /// 62.</summary>
    [CadColor(62, Since = 2004)]
    public short HatchBackgroundColorId { get; set; } = 257;

    /// <summary>Gets or sets the colour of the background of hatches as 0xRRGGBB; -1 for none. Group code
    /// 420.</summary>
    [CadInt(420, Optional = true)]
    public int HatchBackgroundColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the hatch pattern. Group code 300.</summary>
    [CadString(300)]
    public string HatchPattern { get; set; } = "ANSI31";

    /// <summary>Gets or sets the scale of the hatch pattern. Group code 40.</summary>
    [CadDouble(40)]
    public double HatchScale { get; set; } = 1;

    /// <summary>Gets or sets the transparency of hatches. Group code 90.</summary>
    [CadInt(90)]
    public int HatchTransparency { get; set; }

    /// <summary>Gets or sets whether hatches are left out. Group code 290.</summary>
    [CadBool(290)]
    public bool HideHatching { get; set; }

    /// <summary>Gets or sets whether hatches are reversed. Group code 290.</summary>
    [CadBool(290)]
    public bool ReverseHatching { get; set; }

    /// <summary>Gets the angles of hatches, in radians. The list is live. Group code 40.</summary>
    [CadList(40, Count = 90)]
    public List<double> HatchAngles { get; } = [];
}
