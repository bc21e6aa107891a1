using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A filled quadrilateral or triangle. The third and fourth corners are swapped: the boundary runs 1, 2, 4,
/// 3.</summary>
[CadObject("SOLID", Subclass = "AcDbTrace")]
[CadBits("BT Thickness", "ExchangeCorners()", "BE ExtrusionDirection")]
public partial class CadSolid : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSolid()
    {
    }

    /// <summary>Gets or sets the first corner, in object coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the second corner, in object coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint SecondPoint { get; set; } = new();

    /// <summary>Gets or sets the third corner, in object coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint ThirdPoint { get; set; } = new();

    /// <summary>Gets or sets the fourth corner, in object coordinates; the third again in a triangle. Group codes 13,
    /// 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FourthPoint { get; set; } = new();

    // One elevation for all corners.
    private void ExchangeCorners(BitExchange fields) =>
        fields.FlatPoints(FirstPoint, SecondPoint, ThirdPoint, FourthPoint);
}
