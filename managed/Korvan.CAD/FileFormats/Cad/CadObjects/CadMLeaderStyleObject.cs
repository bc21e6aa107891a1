using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A style of multileaders.</summary>
[CadObject("MLEADERSTYLE", Subclass = "AcDbMLeaderStyle")]
[CadBits(
    "2010+ BS Version", "BS ContentType", "BS DrawMLeaderOrder", "BS DrawLeaderOrder", "BL MaxLeaderSegments",
    "BD FirstSegmentAngle", "BD SecondSegmentAngle", "BS LeaderType", "CMP LeaderColor", "H LineTypeHandle",
    "BL LineWeight", "B IsLandingEnabled", "BD LandingGap", "B IsDoglegEnabled", "BD DoglegLength", "T Description",
    "H ArrowheadHandle", "BD ArrowheadSize", "T DefaultText", "H TextStyleHandle", "BS TextLeftAttachment",
    "BS TextRightAttachment", "BS TextAngleType", "BS TextAlignmentType", "CMP TextColor", "BD TextHeight",
    "B IsTextFrameEnabled", "B IsTextAlwaysLeft", "BD AlignSpace", "H BlockContentHandle", "CMP BlockContentColor",
    "BD BlockContentScaleX", "BD BlockContentScaleY", "BD BlockContentScaleZ", "B IsBlockScaleEnabled",
    "BD BlockContentRotation", "B IsBlockRotationEnabled", "BS BlockContentConnectionType", "BD Scale",
    "B IsPropertyChanged", "B IsAnnotative", "BD BreakSize", "2010+ BS TextAttachmentDirection",
    "2010+ BS TextTopAttachment", "2010+ BS TextBottomAttachment", "2013+ B IsLeaderExtendedToText")]
public partial class CadMLeaderStyleObject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMLeaderStyleObject()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 179.</summary>
    [CadShort(179, Since = 2010)]
    public short Version { get; set; } = 2;

    /// <summary>Gets or sets the type of the content: 0 none, 1 a block, 2 a text, 3 a tolerance. Group code
    /// 170.</summary>
    [CadShort(170)]
    public short ContentType { get; set; } = 2;

    /// <summary>Gets or sets what is drawn first: 0 the content, 1 the leader. Group code 171.</summary>
    [CadShort(171)]
    public short DrawMLeaderOrder { get; set; } = 1;

    /// <summary>Gets or sets what of a leader is drawn first: 0 its head, 1 its tail. Group code 172.</summary>
    [CadShort(172)]
    public short DrawLeaderOrder { get; set; }

    /// <summary>Gets or sets the largest number of points of a leader line. Group code 90.</summary>
    [CadInt(90)]
    public int MaxLeaderSegments { get; set; } = 2;

    /// <summary>Gets or sets the angle that the first segment keeps to, in radians; 0 for any. Group code
    /// 40.</summary>
    [CadDouble(40)]
    public double FirstSegmentAngle { get; set; }

    /// <summary>Gets or sets the angle that the second segment keeps to, in radians; 0 for any. Group code
    /// 41.</summary>
    [CadDouble(41)]
    public double SecondSegmentAngle { get; set; }

    /// <summary>Gets or sets the type of leader lines: 0 none, 1 straight, 2 splines. Group code 173.</summary>
    [CadShort(173)]
    public short LeaderType { get; set; } = 1;

    /// <summary>Gets or sets the colour of leader lines: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 91.</summary>
    [CadInt(91)]
    public int LeaderColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the handle of the line type of leader lines in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string LineTypeHandle { get; set; } = "";

    /// <summary>Gets or sets the line weight of leader lines in hundredths of a millimetre; -1 by layer, -2 by block,
    /// -3 the default. Group code 92.</summary>
    [CadInt(92)]
    public int LineWeight { get; set; } = -2;

    /// <summary>Gets or sets whether a landing joins leaders and content. Group code 290.</summary>
    [CadBool(290)]
    public bool IsLandingEnabled { get; set; } = true;

    /// <summary>Gets or sets the gap between landing and content. Group code 42.</summary>
    [CadDouble(42)]
    public double LandingGap { get; set; } = 2;

    /// <summary>Gets or sets whether the landing has a length. Group code 291.</summary>
    [CadBool(291)]
    public bool IsDoglegEnabled { get; set; } = true;

    /// <summary>Gets or sets the length of the landing. Group code 43.</summary>
    [CadDouble(43)]
    public double DoglegLength { get; set; } = 8;

    /// <summary>Gets or sets the description. Group code 3.</summary>
    [CadString(3)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the handle of the block of arrowheads in hexadecimal; empty for the default one. Group
    /// code 341.</summary>
    [CadHandle(341, Optional = true)]
    public string ArrowheadHandle { get; set; } = "";

    /// <summary>Gets or sets the size of arrowheads. Group code 44.</summary>
    [CadDouble(44)]
    public double ArrowheadSize { get; set; } = 4;

    /// <summary>Gets or sets the text that new multileaders begin with. Group code 300.</summary>
    [CadString(300)]
    public string DefaultText { get; set; } = "";

    /// <summary>Gets or sets the handle of the text style in hexadecimal. Group code 342.</summary>
    [CadHandle(342, Optional = true)]
    public string TextStyleHandle { get; set; } = "";

    /// <summary>Gets or sets how leaders are attached at the left of the text: 0 top of the first line, 1 its middle,
    /// 2 the middle of the text, 3 the middle of the last line, 4 its bottom, 5 the bottom of the first line with an
    /// underline, 6 the same under all lines, 7 the underlined last line, 8 the underlined first line. Group code
    /// 174.</summary>
    [CadShort(174)]
    public short TextLeftAttachment { get; set; } = 1;

    /// <summary>Gets or sets how leaders are attached at the right of the text, in the values of <see
    /// cref="TextLeftAttachment"/>. Group code 178.</summary>
    [CadShort(178)]
    public short TextRightAttachment { get; set; } = 1;

    /// <summary>Gets or sets the angle of the text: 0 along the last segment, 1 horizontal, 2 along the segment and
    /// readable. Group code 175.</summary>
    [CadShort(175)]
    public short TextAngleType { get; set; } = 1;

    /// <summary>Gets or sets the alignment of the text: 0 left, 1 centre, 2 right. Group code 176.</summary>
    [CadShort(176)]
    public short TextAlignmentType { get; set; }

    /// <summary>Gets or sets the colour of the text: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 93.</summary>
    [CadInt(93)]
    public int TextColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the height of the text. Group code 45.</summary>
    [CadDouble(45)]
    public double TextHeight { get; set; } = 4;

    /// <summary>Gets or sets whether the text has a frame. Group code 292.</summary>
    [CadBool(292)]
    public bool IsTextFrameEnabled { get; set; }

    /// <summary>Gets or sets whether text at the left of its leader is left aligned as well. Group code
    /// 297.</summary>
    [CadBool(297)]
    public bool IsTextAlwaysLeft { get; set; }

    /// <summary>Gets or sets the distance that aligned multileaders keep. Group code 46.</summary>
    [CadDouble(46)]
    public double AlignSpace { get; set; } = 4;

    /// <summary>Gets or sets the handle of the block record of the content in hexadecimal; empty for none. Group code
    /// 343.</summary>
    [CadHandle(343, Optional = true)]
    public string BlockContentHandle { get; set; } = "";

    /// <summary>Gets or sets the colour of the block: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 94.</summary>
    [CadInt(94)]
    public int BlockContentColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the scale of the block along X. Group code 47.</summary>
    [CadDouble(47)]
    public double BlockContentScaleX { get; set; } = 1;

    /// <summary>Gets or sets the scale of the block along Y. Group code 49.</summary>
    [CadDouble(49)]
    public double BlockContentScaleY { get; set; } = 1;

    /// <summary>Gets or sets the scale of the block along Z. Group code 140.</summary>
    [CadDouble(140)]
    public double BlockContentScaleZ { get; set; } = 1;

    /// <summary>Gets or sets whether the scale of the block counts. Group code 293.</summary>
    [CadBool(293)]
    public bool IsBlockScaleEnabled { get; set; } = true;

    /// <summary>Gets or sets the rotation of the block, in radians. Group code 141.</summary>
    [CadDouble(141)]
    public double BlockContentRotation { get; set; }

    /// <summary>Gets or sets whether the rotation of the block counts. Group code 294.</summary>
    [CadBool(294)]
    public bool IsBlockRotationEnabled { get; set; } = true;

    /// <summary>Gets or sets where leaders are attached to a block: 0 its extents, 1 its base point. Group code
    /// 177.</summary>
    [CadShort(177)]
    public short BlockContentConnectionType { get; set; }

    /// <summary>Gets or sets the scale of multileaders. Group code 142.</summary>
    [CadDouble(142)]
    public double Scale { get; set; } = 1;

    /// <summary>Gets or sets whether properties were changed. Group code 295.</summary>
    [CadBool(295)]
    public bool IsPropertyChanged { get; set; }

    /// <summary>Gets or sets whether multileaders follow the annotation scale. Group code 296.</summary>
    [CadBool(296)]
    public bool IsAnnotative { get; set; }

    /// <summary>Gets or sets the size of the gap where lines cross. Group code 143.</summary>
    [CadDouble(143)]
    public double BreakSize { get; set; } = 3.75;

    /// <summary>Gets or sets whether leaders are attached at the sides of the content (0) or at its top and bottom
    /// (1). Group code 271.</summary>
    [CadShort(271, Since = 2010)]
    public short TextAttachmentDirection { get; set; }

    /// <summary>Gets or sets how leaders are attached at the bottom of the content: 9 centred, 10 centred with a
    /// line. Group code 272.</summary>
    [CadShort(272, Since = 2010)]
    public short TextBottomAttachment { get; set; } = 9;

    /// <summary>Gets or sets how leaders are attached at the top of the content: 9 centred, 10 centred with a line.
    /// Group code 273.</summary>
    [CadShort(273, Since = 2010)]
    public short TextTopAttachment { get; set; } = 9;

    /// <summary>Gets or sets whether leaders reach to the text. Group code 298.</summary>
    [CadBool(298, Since = 2013)]
    public bool IsLeaderExtendedToText { get; set; }
}
