using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The geometry of a multileader at one annotation scale: its leaders and its content, which is a text or a
/// block.</summary>
[CadBits(
    "Part[BL] LeaderNodes", "BD Scale", "3BD ContentBasePoint", "BD TextHeight", "BD ArrowheadSize", "BD LandingGap",
    "BS LeftAttachment", "BS RightAttachment", "BS TextAlignType", "BS BlockAttachment", "B HasText",
    "if HasText: T Text", "if HasText: 3BD TextNormal", "if HasText: H TextStyleHandle",
    "if HasText: 3BD TextLocation", "if HasText: 3BD TextDirection", "if HasText: BD TextRotation",
    "if HasText: BD TextWidth", "if HasText: BD DefinedHeight", "if HasText: BD LineSpacingFactor",
    "if HasText: BS LineSpacingStyle", "if HasText: CMP TextColor", "if HasText: BS TextAttachment",
    "if HasText: BS FlowDirection", "if HasText: CMP BackgroundColor", "if HasText: BD BackgroundScaleFactor",
    "if HasText: BL BackgroundTransparency", "if HasText: B IsBackgroundFillEnabled",
    "if HasText: B IsBackgroundMaskEnabled", "if HasText: BS ColumnType", "if HasText: B IsTextHeightAutomatic",
    "if HasText: BD ColumnWidth", "if HasText: BD ColumnGutter", "if HasText: B IsColumnFlowReversed",
    "if HasText: BD[BL] ColumnSizes", "if HasText: B WordBreak", "if HasText: B", "if !HasText: B HasBlock",
    "if !HasText && HasBlock: Part Block", "3BD PlaneOrigin", "3BD PlaneXAxis", "3BD PlaneYAxis",
    "B IsPlaneNormalReversed", "2010+ BS TopAttachment", "2010+ BS BottomAttachment")]
public partial class CadMLeaderContextData
{
    private const int LeaderStart = 302;
    private const int LeaderEnd = 303;

    /// <summary>Creates a context without leaders and content.</summary>
    public CadMLeaderContextData()
    {
    }

    /// <summary>Gets or sets the annotation scale. Group code 40.</summary>
    [CadDouble(40)]
    public double Scale { get; set; } = 1;

    /// <summary>Gets or sets the base point of the content, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint ContentBasePoint { get; set; } = new();

    /// <summary>Gets or sets the height of the text. Group code 41.</summary>
    [CadDouble(41)]
    public double TextHeight { get; set; } = 4;

    /// <summary>Gets or sets the size of the arrowheads. Group code 140.</summary>
    [CadDouble(140)]
    public double ArrowheadSize { get; set; } = 4;

    /// <summary>Gets or sets the gap between landing and content. Group code 145.</summary>
    [CadDouble(145)]
    public double LandingGap { get; set; } = 2;

    /// <summary>Gets or sets how leaders are attached at the left of the text. Group code 174.</summary>
    [CadShort(174)]
    public short LeftAttachment { get; set; } = 1;

    /// <summary>Gets or sets how leaders are attached at the right of the text. Group code 175.</summary>
    [CadShort(175)]
    public short RightAttachment { get; set; } = 1;

    /// <summary>Gets or sets the alignment of the text: 0 left, 1 centre, 2 right. Group code 176.</summary>
    [CadShort(176)]
    public short TextAlignType { get; set; }

    /// <summary>Gets or sets where leaders are attached to a block: 0 its extents, 1 its base point. Group code
    /// 177.</summary>
    [CadShort(177)]
    public short BlockAttachment { get; set; }

    /// <summary>Gets or sets whether the content is a text. Group code 290.</summary>
    [CadBool(290)]
    public bool HasText { get; set; }

    /// <summary>Gets or sets the text with its formatting codes, as in a multiline text. Group code 304.</summary>
    [CadString(304)]
    [CadWhen(nameof(HasText))]
    public string Text { get; set; } = "";

    /// <summary>Gets or sets the unit normal of the plane of the text. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    [CadWhen(nameof(HasText))]
    public Cad3DPoint TextNormal { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the handle of the text style in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    [CadWhen(nameof(HasText))]
    public string TextStyleHandle { get; set; } = "";

    /// <summary>Gets or sets the position of the text, in world coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    [CadWhen(nameof(HasText))]
    public Cad3DPoint TextLocation { get; set; } = new();

    /// <summary>Gets or sets the direction of the base line. Group codes 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    [CadWhen(nameof(HasText))]
    public Cad3DPoint TextDirection { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the rotation of the text, in radians. Group code 42.</summary>
    [CadDouble(42)]
    [CadWhen(nameof(HasText))]
    public double TextRotation { get; set; }

    /// <summary>Gets or sets the width that lines are broken at; 0 for no breaking. Group code 43.</summary>
    [CadDouble(43)]
    [CadWhen(nameof(HasText))]
    public double TextWidth { get; set; }

    /// <summary>Gets or sets the height of the columns; 0 for as much as the text needs. Group code 44.</summary>
    [CadDouble(44)]
    [CadWhen(nameof(HasText))]
    public double DefinedHeight { get; set; }

    /// <summary>Gets or sets the distance of lines as a factor on the default distance. Group code 45.</summary>
    [CadDouble(45)]
    [CadWhen(nameof(HasText))]
    public double LineSpacingFactor { get; set; } = 1;

    /// <summary>Gets or sets how the distance of lines is measured. Group code 170.</summary>
    [CadShort(170)]
    [CadWhen(nameof(HasText))]
    public CadLineSpacing LineSpacingStyle { get; set; } = CadLineSpacing.AtLeast;

    /// <summary>Gets or sets the colour of the text: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true
    /// colour, 0xC3000000 plus the index of a colour. Group code 90.</summary>
    [CadInt(90)]
    [CadWhen(nameof(HasText))]
    public int TextColor { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the point of the text at its location: 1 top left, 2 top centre, 3 top right. Group code
    /// 171.</summary>
    [CadShort(171)]
    [CadWhen(nameof(HasText))]
    public short TextAttachment { get; set; } = 1;

    /// <summary>Gets or sets the direction of the text. Group code 172.</summary>
    [CadShort(172)]
    [CadWhen(nameof(HasText))]
    public CadDrawingDirection FlowDirection { get; set; } = CadDrawingDirection.ByStyle;

    /// <summary>Gets or sets the colour of the background: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a
    /// true colour, 0xC3000000 plus the index of a colour, 0xC8000000 that of the window. Group code 91.</summary>
    [CadInt(91)]
    [CadWhen(nameof(HasText))]
    public int BackgroundColor { get; set; } = unchecked((int)0xC8000000);

    /// <summary>Gets or sets the size of the background as a factor on the text height. Group code 141.</summary>
    [CadDouble(141)]
    [CadWhen(nameof(HasText))]
    public double BackgroundScaleFactor { get; set; } = 1.5;

    /// <summary>Gets or sets the transparency of the background. Group code 92.</summary>
    [CadInt(92)]
    [CadWhen(nameof(HasText))]
    public int BackgroundTransparency { get; set; }

    /// <summary>Gets or sets whether the background is that of the window. Group code 291.</summary>
    [CadBool(291)]
    [CadWhen(nameof(HasText))]
    public bool IsBackgroundFillEnabled { get; set; }

    /// <summary>Gets or sets whether the background hides what is below. Group code 292.</summary>
    [CadBool(292)]
    [CadWhen(nameof(HasText))]
    public bool IsBackgroundMaskEnabled { get; set; }

    /// <summary>Gets or sets the columns: 0 none, 1 static, 2 dynamic. Group code 173.</summary>
    [CadShort(173)]
    [CadWhen(nameof(HasText))]
    public short ColumnType { get; set; }

    /// <summary>Gets or sets whether the height of columns follows from the text. Group code 293.</summary>
    [CadBool(293)]
    [CadWhen(nameof(HasText))]
    public bool IsTextHeightAutomatic { get; set; }

    /// <summary>Gets or sets the width of a column. Group code 142.</summary>
    [CadDouble(142)]
    [CadWhen(nameof(HasText))]
    public double ColumnWidth { get; set; }

    /// <summary>Gets or sets the gap between columns. Group code 143.</summary>
    [CadDouble(143)]
    [CadWhen(nameof(HasText))]
    public double ColumnGutter { get; set; }

    /// <summary>Gets or sets whether columns run from right to left. Group code 294.</summary>
    [CadBool(294)]
    [CadWhen(nameof(HasText))]
    public bool IsColumnFlowReversed { get; set; }

    /// <summary>Gets the heights of the columns, where each has its own. The list is live. Group code 144.</summary>
    [CadList(144)]
    [CadWhen(nameof(HasText))]
    public List<double> ColumnSizes { get; } = [];

    /// <summary>Gets or sets whether lines break between words only. Group code 295.</summary>
    [CadBool(295)]
    [CadWhen(nameof(HasText))]
    public bool WordBreak { get; set; }

    /// <summary>Gets or sets whether the content is a block. Group code 296.</summary>
    [CadBool(296)]
    public bool HasBlock { get; set; }

    /// <summary>Gets the block that is the content where <see cref="HasBlock"/> says so.</summary>
    [CadPart]
    [CadWhen(nameof(HasBlock))]
    public CadMLeaderBlock Block { get; } = new();

    /// <summary>Gets or sets the origin of the plane of the multileader, in world coordinates. Group codes 110, 120,
    /// 130.</summary>
    [Cad3DPoint(110)]
    public Cad3DPoint PlaneOrigin { get; set; } = new();

    /// <summary>Gets or sets the X axis of the plane. Group codes 111, 121, 131.</summary>
    [Cad3DPoint(111)]
    public Cad3DPoint PlaneXAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis of the plane. Group codes 112, 122, 132.</summary>
    [Cad3DPoint(112)]
    public Cad3DPoint PlaneYAxis { get; set; } = new(0, 1, 0);

    /// <summary>Gets or sets whether the normal of the plane is reversed. Group code 297.</summary>
    [CadBool(297)]
    public bool IsPlaneNormalReversed { get; set; }

    /// <summary>Gets the leaders. The list is live. Group code 302.</summary>
    public IList<CadMLeaderNode> LeaderNodes { get; } = new CheckedList<CadMLeaderNode>("leader_nodes");

    /// <summary>Gets or sets how leaders are attached at the top of the content. Group code 273.</summary>
    public short TopAttachment { get; set; } = 9;

    /// <summary>Gets or sets how leaders are attached at the bottom of the content. Group code 272.</summary>
    public short BottomAttachment { get; set; } = 9;

    /// <summary>Gets fields that the class does not have.</summary>
    internal List<CadCodeValue> Kept { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        switch (code)
        {
            case LeaderStart:
                CadMLeaderNode leader = new();
                FieldParts.Read(reader, LeaderEnd, leader.ReadField, leader.Kept);
                LeaderNodes.Add(leader);
                break;
            case 272:
                BottomAttachment = reader.GetShort();
                break;
            case 273:
                TopAttachment = reader.GetShort();
                break;
            default:
                return;
        }

        taken = true;
    }

    partial void OnExchange(ObjectExchange fields)
    {
        int count = fields.Count(0, LeaderNodes.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Brace(LeaderStart, "LEADER{");
            fields.Item(LeaderNodes, i).Exchange(fields);
            fields.Brace(LeaderEnd, "}");
        }

        if (fields.Includes(2010, true))
        {
            BottomAttachment = fields.Int16(272, BottomAttachment);
            TopAttachment = fields.Int16(273, TopAttachment);
        }

        fields.Tags(Kept);
    }
}
