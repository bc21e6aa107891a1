using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of a coordinate.</summary>
[CadObject("DIMENSION", Subclass = "AcDbOrdinateDimension")]
[CadBits("base", "3BD DefinitionPoint", "3BD FeaturePoint", "3BD LeaderEndPoint", "ExchangeAxis()")]
public partial class CadDimensionOrdinate : CadDimensionBase
{
    /// <summary>Gets or sets the point whose coordinate is shown, in world coordinates. Group codes 13, 23,
    /// 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FeaturePoint { get; set; } = new();

    /// <summary>Gets or sets the end of the leader, in world coordinates. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint LeaderEndPoint { get; set; } = new();

    /// <summary>Creates the object with its defaults.</summary>
    public CadDimensionOrdinate()
    {
        TypeOfDimension = (short)CadDimensionType.Ordinate;
    }

    private void ExchangeAxis(BitExchange fields)
    {
        const int alongX = 64;
        bool isAlongX = (fields.RawByte((TypeOfDimension & alongX) != 0 ? 1 : 0) & 1) != 0;
        TypeOfDimension = (short)((TypeOfDimension & ~alongX) | (isAlongX ? alongX : 0));
    }
}
