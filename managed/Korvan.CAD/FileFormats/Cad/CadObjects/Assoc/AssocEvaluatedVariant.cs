using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A value of one of several types; its group code states which.</summary>
[CadSequence]
[CadBits("ExchangeVariant()")]
public partial class AssocEvaluatedVariant
{
    /// <summary>Creates the object with its defaults.</summary>
    public AssocEvaluatedVariant()
    {
    }

    /// <summary>Gets or sets the group code of the value, which states its type; 0 for none. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short Code { get; set; }

    /// <summary>Gets or sets the value as a number; 0 where it is of another type. Group codes 40 to 59 and 140 to
    /// 149.</summary>
    public double Number { get; set; }

    /// <summary>Gets or sets the value as an integer; 0 where it is of another type. Group codes 60 to 99, 170 to 179
    /// and 280 to 299.</summary>
    public int Integer { get; set; }

    /// <summary>Gets or sets the value as a string, or as a handle in hexadecimal; empty where it is of another type.
    /// Group codes 1 to 9 and 300 to 369.</summary>
    public string Text { get; set; } = "";

    /// <summary>Gets or sets the value as a point; the origin where it is of another type. Group codes 10 to
    /// 19.</summary>
    public Cad3DPoint Point { get; set; } = new();

    partial void OnExchange(ObjectExchange fields)
    {
        switch (Code)
        {
            case >= 10 and < 20:
                ExchangePoint(fields);
                break;
            case (>= 40 and < 60) or (>= 140 and < 150):
                Number = fields.Double(Code, Number);
                break;
            case (> 0 and < 10) or (>= 300 and < 370):
                Text = fields.Text(Code, Text);
                break;
            case (>= 60 and < 100) or (>= 170 and < 180) or (>= 280 and < 300):
                Integer = fields.Int32(Code, Integer);
                break;
        }
    }

    // Points in the plane have no third coordinate.
    private void ExchangePoint(ObjectExchange fields)
    {
        Point.X = fields.Double(Code, Point.X);
        Point.Y = fields.Double(Code + 10, Point.Y);
        if (fields.Has(Code + 20, 0, Point.Z != 0))
        {
            Point.Z = fields.Double(Code + 20, Point.Z);
        }
    }

    // Databases have a code of their own for no value.
    private void ExchangeVariant(BitExchange fields)
    {
        const short none = -9999;
        short code = (short)fields.BitShort(Code == 0 ? none : Code);
        Code = code == none ? (short)0 : code;
        switch (Code)
        {
            case >= 10 and < 20:
                Point.X = fields.RawDouble(Point.X);
                Point.Y = fields.RawDouble(Point.Y);
                break;
            case (>= 40 and < 60) or (>= 140 and < 150):
                Number = fields.BitDouble(Number);
                break;
            case (> 0 and < 10) or (>= 300 and < 370):
                Text = fields.Text(Text);
                break;
            case (>= 60 and < 80) or (>= 170 and < 180) or (>= 280 and < 300):
                Integer = fields.BitShort(Integer);
                break;
            case 91:
                Text = fields.Handle(HandleRole.HardPointer, Text);
                break;
            case >= 80 and < 100:
                Integer = fields.BitLong(Integer);
                break;
        }
    }
}
