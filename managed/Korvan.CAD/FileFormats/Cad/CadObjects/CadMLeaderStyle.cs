using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The properties of one multileader: those of its style, and what the multileader changes of
/// them.</summary>
[CadBits(
    "H StyleHandle", "BL OverrideFlags", "BS LeaderType", "CMP LeaderColor", "H LineTypeHandle", "BL LineWeight",
    "B IsLandingEnabled", "B IsDoglegEnabled", "BD DoglegLength", "H ArrowheadHandle", "BD ArrowheadSize",
    "BS ContentType", "H TextStyleHandle", "BS TextLeftAttachment", "BS TextRightAttachment", "BS TextAngleType",
    "BS TextAlignmentType", "CMP TextColor", "B IsTextFrameEnabled", "H BlockContentHandle", "CMP BlockContentColor",
    "3BD BlockContentScale", "BD BlockContentRotation", "BS BlockContentConnectionType", "B IsAnnotative",
    "-2007 Part[BL] Arrowheads", "Part[BL] BlockAttributes", "B IsTextDirectionNegative", "BS TextAlignInIpe",
    "BS TextAttachmentPoint", "BD Scale", "2010+ BS TextAttachmentDirection", "2010+ BS TextTopAttachment",
    "2010+ BS TextBottomAttachment", "2013+ B IsLeaderExtendedToText")]
public partial class CadMLeaderStyle
{
    /// <summary>Creates the properties with their defaults.</summary>
    public CadMLeaderStyle()
    {
    }

    /// <summary>Gets or sets the handle of the style in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string StyleHandle { get; set; } = "";

    /// <summary>Gets or sets which properties go before those of the style, a bit for each. Group code 90.</summary>
    [CadInt(90)]
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets the type of leader lines: 0 none, 1 straight, 2 splines. Group code 170.</summary>
    [CadShort(170)]
    public short LeaderType { get; set; } = 1;

    /// <summary>Gets or sets the colour of leader lines: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 91.</summary>
    [CadInt(91)]
    public int LeaderColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the handle of the line type of leader lines in hexadecimal. Group code 341.</summary>
    [CadHandle(341, Optional = true)]
    public string LineTypeHandle { get; set; } = "";

    /// <summary>Gets or sets the line weight of leader lines in hundredths of a millimetre; -1 by layer, -2 by block,
    /// -3 the default. Group code 171.</summary>
    [CadShort(171)]
    public short LineWeight { get; set; } = -2;

    /// <summary>Gets or sets whether a landing joins leaders and content. Group code 290.</summary>
    [CadBool(290)]
    public bool IsLandingEnabled { get; set; } = true;

    /// <summary>Gets or sets whether the landing has a length. Group code 291.</summary>
    [CadBool(291)]
    public bool IsDoglegEnabled { get; set; } = true;

    /// <summary>Gets or sets the length of the landing. Group code 41.</summary>
    [CadDouble(41)]
    public double DoglegLength { get; set; } = 8;

    /// <summary>Gets or sets the handle of the block of arrowheads in hexadecimal; empty for the default one. Group
    /// code 342.</summary>
    [CadHandle(342, Optional = true)]
    public string ArrowheadHandle { get; set; } = "";

    /// <summary>Gets or sets the size of arrowheads. Group code 42.</summary>
    [CadDouble(42)]
    public double ArrowheadSize { get; set; } = 4;

    /// <summary>Gets or sets the type of the content: 0 none, 1 a block, 2 a text, 3 a tolerance. Group code
    /// 172.</summary>
    [CadShort(172)]
    public short ContentType { get; set; } = 2;

    /// <summary>Gets or sets the handle of the text style in hexadecimal. Group code 343.</summary>
    [CadHandle(343, Optional = true)]
    public string TextStyleHandle { get; set; } = "";

    /// <summary>Gets or sets how leaders are attached at the left of the text: 0 top of the first line, 1 its middle,
    /// 2 the middle of the text, 3 the middle of the last line, 4 its bottom, 5 the bottom of the first line with an
    /// underline, 6 the same under all lines, 7 the underlined last line, 8 the underlined first line. Group code
    /// 173.</summary>
    [CadShort(173)]
    public short TextLeftAttachment { get; set; } = 1;

    /// <summary>Gets or sets how leaders are attached at the right of the text, in the values of <see
    /// cref="TextLeftAttachment"/>. Group code 95.</summary>
    [CadInt(95)]
    public int TextRightAttachment { get; set; } = 1;

    /// <summary>Gets or sets the angle of the text: 0 along the last segment, 1 horizontal, 2 along the segment and
    /// readable. Group code 174.</summary>
    [CadShort(174)]
    public short TextAngleType { get; set; } = 1;

    /// <summary>Gets or sets the alignment of the text: 0 left, 1 centre, 2 right. Group code 175.</summary>
    [CadShort(175)]
    public short TextAlignmentType { get; set; }

    /// <summary>Gets or sets the colour of the text: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 92.</summary>
    [CadInt(92)]
    public int TextColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets whether the text has a frame. Group code 292.</summary>
    [CadBool(292)]
    public bool IsTextFrameEnabled { get; set; }

    /// <summary>Gets or sets the handle of the block record of the content in hexadecimal; empty for none. Group code
    /// 344.</summary>
    [CadHandle(344, Optional = true)]
    public string BlockContentHandle { get; set; } = "";

    /// <summary>Gets or sets the colour of the block: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 93.</summary>
    [CadInt(93)]
    public int BlockContentColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the scale factors of the block. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint BlockContentScale { get; set; } = new(1, 1, 1);

    /// <summary>Gets or sets the rotation of the block, in radians. Group code 43.</summary>
    [CadDouble(43)]
    public double BlockContentRotation { get; set; }

    /// <summary>Gets or sets where leaders are attached to a block: 0 its extents, 1 its base point. Group code
    /// 176.</summary>
    [CadShort(176)]
    public short BlockContentConnectionType { get; set; }

    /// <summary>Gets or sets whether the multileader follows the annotation scale. Group code 293.</summary>
    [CadBool(293)]
    public bool IsAnnotative { get; set; }

    /// <summary>Gets the arrowheads of single lines: the index of a line and the block. Group codes 94, 345.</summary>
    [CadRepeated(94)]
    internal List<MLeaderArrowhead> Arrowheads { get; } = [];

    /// <summary>Gets the attributes of the block: the definition, the index, the width and the value. Group codes 330,
    /// 177, 44, 302.</summary>
    [CadRepeated(330)]
    internal List<MLeaderAttribute> BlockAttributes { get; } = [];

    /// <summary>Gets or sets whether the text runs from right to left. Group code 294.</summary>
    [CadBool(294)]
    public bool IsTextDirectionNegative { get; set; }

    /// <summary>Gets or sets the alignment of text that is edited in place. Group code 178.</summary>
    [CadShort(178)]
    public short TextAlignInIpe { get; set; }

    /// <summary>Gets or sets the point of the text at its location: 1 top left, 2 top centre, 3 top right. Group code
    /// 179.</summary>
    [CadShort(179)]
    public short TextAttachmentPoint { get; set; } = 1;

    /// <summary>Gets or sets the scale of the multileader. Group code 45.</summary>
    [CadDouble(45)]
    public double Scale { get; set; } = 1;

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

    /// <summary>Gets or sets whether leaders reach to the text. Group code 295.</summary>
    [CadBool(295, Since = 2013)]
    public bool IsLeaderExtendedToText { get; set; }
}
