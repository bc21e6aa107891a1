using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Field;

/// <summary>A value of a field or of a cell: an integer, a number, a string, a date, a point or an object, with its
/// unit, its format and the string that shows it.</summary>
[CadSequence]
[CadBits(
    "2007+ ExchangeFlags()", "BL ValueType", "ExchangeValue()", "2007+ BL Unit", "2007+ T Format",
    "2007+ T FormattedText")]
public partial class CadFieldData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadFieldData()
    {
    }

    /// <summary>Gets or sets the name of the value; empty where it has none. Group code 6.</summary>
    [CadString(6, Optional = true)]
    public string Key { get; set; } = "";

    /// <summary>Gets or sets flags: 1 none is set, 2 and 4 how the value came about. Group code 93.</summary>
    [CadInt(93, Since = 2007)]
    public int Flags { get; set; }

    /// <summary>Gets or sets the type: 0 none, 1 an integer, 2 a number, 4 a string, 8 a date, 16 a point in the plane,
    /// 32 a point in space, 64 an object. Group code 90.</summary>
    [CadInt(90)]
    public int ValueType { get; set; }

    /// <summary>Gets or sets the value as an integer. Group code 91.</summary>
    [CadInt(91)]
    [CadWhen("(ValueType & 511) == 1")]
    public int Integer { get; set; }

    /// <summary>Gets or sets the value as a number. Group code 140.</summary>
    [CadDouble(140)]
    [CadWhen("(ValueType & 511) == 2")]
    public double Number { get; set; }

    private const int StringType = 4;
    private const int DateType = 8;
    private const int PlanePointType = 16;
    private const int SpacePointType = 32;
    private const int ObjectType = 64;
    private const int GeneralFlag = 512;
    private const int NoValue = 1;

    /// <summary>Gets or sets the value as a string. Group codes 1, 2.</summary>
    public string Text { get; set; } = "";

    /// <summary>Gets or sets the value as a date: eight integers of 16 bits for year, month, weekday, day, hour,
    /// minute, second and millisecond. Group code 310.</summary>
    public byte[] Date { get; set; } = [];

    /// <summary>Gets or sets the value as a point. Group codes 11, 21, 31.</summary>
    public Cad3DPoint Point { get; set; } = new();

    /// <summary>Gets or sets the value as the handle of an object in hexadecimal. Group code 330.</summary>
    public string ObjectHandle { get; set; } = "0";

    /// <summary>Gets or sets the unit: 0 none, 1 a distance, 2 an angle, 4 an area, 8 a volume. Group code
    /// 94.</summary>
    public int Unit { get; set; }

    /// <summary>Gets or sets the format that the value is shown in. Group code 300.</summary>
    public string Format { get; set; } = "";

    /// <summary>Gets or sets the string that shows the value. Group code 302.</summary>
    public string FormattedText { get; set; } = "";

    partial void OnExchange(ObjectExchange fields)
    {
        switch (ValueType & ~GeneralFlag)
        {
            case StringType:
                Text = fields.LongText(2, 1, Text);
                break;
            case 0 when ValueType == GeneralFlag && fields.Has(1, 0, Text.Length > 0):
                Text = fields.Text(1, Text);
                break;
            case DateType:
                fields.Int32(92, Date.Length);
                Date = fields.Binary(310, Date);
                break;
            case PlanePointType or SpacePointType:
                ExchangePoint(fields);
                break;
            case ObjectType:
                ObjectHandle = fields.Handle(330, HandleRole.SoftPointer, ObjectHandle);
                break;
        }

        if (fields.Has(94, 2007, true))
        {
            Unit = fields.Int32(94, Unit);
            Format = fields.Text(300, Format);
            FormattedText = fields.LongText(303, 302, FormattedText);
            fields.Brace(304, "ACVALUE_END");
        }
    }

    private void ExchangePoint(ObjectExchange fields)
    {
        Point.X = fields.Double(11, Point.X);
        Point.Y = fields.Double(21, Point.Y);
        if (ValueType == SpacePointType)
        {
            Point.Z = fields.Double(31, Point.Z);
        }
    }

    // Releases without flags tell by the type that there is no value.
    private void ExchangeFlags(BitExchange fields)
    {
        const int unset = 2;
        int flags = fields.BitLong(!fields.IsReading && ValueType == 0 ? Flags | NoValue | unset : Flags);
        Flags = fields.IsReading ? flags : Flags;
    }

    // A value of some flags is none.
    private void ExchangeValue(BitExchange fields)
    {
        if (fields.Release >= 2007 && ((Flags & NoValue) != 0 || (ValueType == 0 && !fields.IsReading)))
        {
            return;
        }

        switch (ValueType & ~GeneralFlag)
        {
            case 0 when ValueType == GeneralFlag && fields.Release < 2007:
                // The length of nothing, and a zero.
                fields.BitLong(0);
                fields.RawByte(0);
                break;
            case 0 when ValueType == GeneralFlag && fields.Release >= 2007:
                fields.Block([]);
                break;
            case 0 or 1:
                Integer = fields.BitLong(Integer);
                break;
            case 2:
                Number = fields.BitDouble(Number);
                break;
            case StringType:
                Text = fields.CountedText(Text);
                break;
            case DateType:
                Date = fields.Block(Date);
                break;
            case PlanePointType:
                fields.BitLong(2 * sizeof(double));
                fields.RawPoint2(Point);
                break;
            case SpacePointType:
                fields.BitLong(3 * sizeof(double));
                fields.RawPoint3(Point);
                break;
            case ObjectType:
                ObjectHandle = fields.Handle(HandleRole.SoftPointer, ObjectHandle);
                break;
        }
    }
}
