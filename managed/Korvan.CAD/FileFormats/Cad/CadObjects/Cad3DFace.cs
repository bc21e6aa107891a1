using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A face with three or four corners in space.</summary>
[CadObject("3DFACE", Subclass = "AcDbFace")]
[CadBits(
    "-1997 3BD FirstPoint", "-1997 3BD SecondPoint", "-1997 3BD ThirdPoint", "-1997 3BD FourthPoint",
    "-1997 BS InvisibleEdges", "2000+ ExchangeCorners()")]
public partial class Cad3DFace : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad3DFace()
    {
    }

    /// <summary>Gets or sets the first corner, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the second corner, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint SecondPoint { get; set; } = new();

    /// <summary>Gets or sets the third corner, in world coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint ThirdPoint { get; set; } = new();

    /// <summary>Gets or sets the fourth corner, in world coordinates; the third again in a triangle. Group codes 13,
    /// 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FourthPoint { get; set; } = new();

    /// <summary>Gets or sets which edges are not drawn: 1, 2, 4, 8 for the first to the fourth, added up. Group code
    /// 70.</summary>
    [CadShort(70, Optional = true)]
    public short InvisibleEdges { get; set; }

    // A corner is stored as its difference from the one before.
    private void ExchangeCorners(BitExchange fields)
    {
        bool allVisible = fields.Bit(InvisibleEdges == 0);
        bool isFlat = fields.Bit(FirstPoint.Z == 0);
        fields.RawPoint2(FirstPoint);
        FirstPoint.Z = isFlat ? 0 : fields.RawDouble(FirstPoint.Z);
        fields.PointAfter(SecondPoint, FirstPoint);
        fields.PointAfter(ThirdPoint, SecondPoint);
        fields.PointAfter(FourthPoint, ThirdPoint);
        InvisibleEdges = allVisible ? (short)0 : (short)fields.BitShort(InvisibleEdges);
    }
}
