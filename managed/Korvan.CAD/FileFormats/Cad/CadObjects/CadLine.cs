using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A straight line.</summary>
[CadObject("LINE", Subclass = "AcDbLine")]
[CadBits(
    "-1997 3BD FirstPoint", "-1997 3BD SecondPoint", "2000+ ExchangePoints()", "BT Thickness",
    "BE ExtrusionDirection")]
public partial class CadLine : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLine()
    {
    }

    /// <summary>Gets or sets the start point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the end point, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint SecondPoint { get; set; } = new();

    // The end is stored as its difference from the start, and Z where one of both is not 0.
    private void ExchangePoints(BitExchange fields)
    {
        bool isFlat = fields.Bit(FirstPoint.Z == 0 && SecondPoint.Z == 0);
        FirstPoint.X = fields.RawDouble(FirstPoint.X);
        SecondPoint.X = fields.DoubleAfter(SecondPoint.X, FirstPoint.X);
        FirstPoint.Y = fields.RawDouble(FirstPoint.Y);
        SecondPoint.Y = fields.DoubleAfter(SecondPoint.Y, FirstPoint.Y);
        if (!isFlat)
        {
            FirstPoint.Z = fields.RawDouble(FirstPoint.Z);
            SecondPoint.Z = fields.DoubleAfter(SecondPoint.Z, FirstPoint.Z);
        }
    }
}
