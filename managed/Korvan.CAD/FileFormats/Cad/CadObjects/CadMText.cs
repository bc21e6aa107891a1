using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A text of several lines with formatting codes.</summary>
[CadObject("MTEXT", Subclass = "AcDbMText")]
[CadBits(
    "3BD InsertionPoint", "3BD ExtrusionDirection", "ExchangeDirection()", "BD ReferenceRectangleWidth",
    "2007+ BD ReferenceRectangleHeight", "BD InitialTextHeight", "BS AttachmentPoint", "BS DrawingDirection", "BD",
    "BD", "T Text", "H TextStyleName", "2000+ BS LineSpacingStyle", "2000+ BD LineSpacingFactor", "2000+ B",
    "2004+ BL BackgroundFillSetting", "2004+ ExchangeBackground()", "2018+ ExchangeColumns()")]
public partial class CadMText : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMText()
    {
    }

    /// <summary>Gets or sets the insertion point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the height of capital letters. Group code 40.</summary>
    [CadDouble(40)]
    public double InitialTextHeight { get; set; } = 1;

    /// <summary>Gets or sets the width that lines are broken at; 0 for no breaking. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double ReferenceRectangleWidth { get; set; }

    /// <summary>Gets or sets the height of the column; 0 when it was never stated. Group code 46.</summary>
    [CadDouble(46, Optional = true, Since = 2007)]
    public double ReferenceRectangleHeight { get; set; }

    /// <summary>Gets or sets which point of the text stands at the insertion point. Group code 71.</summary>
    [CadShort(71)]
    public CadAttachmentPoint AttachmentPoint { get; set; } = CadAttachmentPoint.TopLeft;

    /// <summary>Gets or sets the direction of the text. Group code 72.</summary>
    [CadShort(72, Optional = true)]
    public CadDrawingDirection DrawingDirection { get; set; } = CadDrawingDirection.LeftToRight;

    /// <summary>Gets or sets the text with its formatting codes, in one piece. Group codes 3 and 1.</summary>
    public string Text { get; set; } = "";

    /// <summary>Gets or sets the name of the text style. Group code 7.</summary>
    [CadName(7, SymbolTable.Style, Optional = true)]
    public string TextStyleName { get; set; } = "STANDARD";

    /// <summary>Gets or sets the unit normal of the plane of the text. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the direction of the text, in world coordinates; (0, 0, 0) when
    /// <see cref="TextRotation"/> tells it. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11, Optional = true)]
    public Cad3DPoint TextDirection { get; set; } = new();

    /// <summary>Gets or sets the direction of the text, in degrees from the X axis of the plane. It counts where
    /// <see cref="TextDirection"/> is (0, 0, 0). Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double TextRotation { get; set; }

    /// <summary>Gets or sets how the distance of lines is measured. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public CadLineSpacing LineSpacingStyle { get; set; } = CadLineSpacing.AtLeast;

    /// <summary>Gets or sets the distance of lines as a part of the usual 5/3 of the height, 0.25 to 4. Group
    /// code 44.</summary>
    [CadDouble(44, Optional = true)]
    public double LineSpacingFactor { get; set; } = 1;

    /// <summary>Gets or sets what lies behind the text. Group code 90.</summary>
    [CadInt(90, Optional = true, Since = 2004)]
    public CadFillSetting BackgroundFillSetting { get; set; }

    /// <summary>Gets or sets how far the background reaches, as a factor on the height; 1.5 is usual. Group
    /// code 45.</summary>
    [CadDouble(45, Optional = true, Since = 2004)]
    public double FillBoxScale { get; set; }

    /// <summary>Gets or sets the number of the background's colour. Group code 63.</summary>
    [CadColor(63, Optional = true, Since = 2004)]
    public short BackgroundColorId { get; set; }

    /// <summary>Gets or sets the background's colour as 0xRRGGBB; -1 where <see cref="BackgroundColorId"/> tells
    /// it. Group code 421.</summary>
    [CadInt(421, Optional = true, Since = 2004)]
    public int BackgroundColor { get; set; } = -1;

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code is not (1 or 3))
        {
            return;
        }

        taken = true;
        StringBuilder text = new(Text);
        do
        {
            text.Append(reader.GetString());
        }
        while (reader.Next() && reader.Code is 1 or 3);
        reader.Unread();
        Text = text.ToString();
    }

    partial void OnExchange(ObjectExchange fields) => Text = fields.LongText(3, 1, Text);

    private void ExchangeBackground(BitExchange fields)
    {
        const int fill = 1;
        const int frame = 16;
        int setting = (int)BackgroundFillSetting;
        if ((setting & fill) != 0 || (fields.Release >= 2018 && (setting & frame) != 0))
        {
            FillBoxScale = fields.BitDouble(FillBoxScale);
            (int index, BackgroundColor, _) = fields.Color(BackgroundColorId, BackgroundColor, "");
            BackgroundColorId = (short)index;
            fields.BitLong(0);
        }
    }

    // Databases have no angle.
    private void ExchangeDirection(BitExchange fields) =>
        fields.Point3(fields.IsReading ? TextDirection : StatedDirection());

    private Cad3DPoint StatedDirection()
    {
        if (TextDirection.ToVec3() != default)
        {
            return TextDirection;
        }

        Vec3 direction = EntityGeometry.PlaneOf(this).AxisX;
        return new Cad3DPoint(direction.X, direction.Y, direction.Z);
    }

    // Text files have the columns in an embedded object. What precedes them is that of the text again.
    private void ExchangeColumns(BitExchange fields)
    {
        const int columnsVersion = 4;
        bool isAnnotative = !fields.Bit(true);
        if (isAnnotative)
        {
            return;
        }

        fields.BitShort(columnsVersion);
        fields.Bit(true);
        fields.Handle(HandleRole.HardPointer, 0);
        fields.BitLong((int)AttachmentPoint);
        fields.Point3(fields.IsReading ? new Cad3DPoint() : StatedDirection());
        fields.Point3(fields.IsReading ? new Cad3DPoint() : InsertionPoint);
        fields.BitDouble(ReferenceRectangleWidth);
        fields.BitDouble(ReferenceRectangleHeight);
        TextColumns columns = fields.IsReading ? new TextColumns() : TextColumns.FromTags(Embedded);
        columns.ExchangeBits(fields);
        if (fields.IsReading && columns.Kind != 0)
        {
            KeptTags.Of(this).Embedded = columns.ToTags(this);
        }
    }
}
