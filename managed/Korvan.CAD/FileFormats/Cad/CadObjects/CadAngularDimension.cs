using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of the angle between two points as seen from a third.</summary>
[CadObject("DIMENSION", Subclass = "AcDb3PointAngularDimension")]
[CadBits("base", "3BD DefinitionPoint", "3BD FirstPoint", "3BD SecondPoint", "3BD ThirdPoint")]
public partial class CadAngularDimension : CadDimensionBase
{
    /// <summary>Gets or sets the first point, in world coordinates. Group codes 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the second point, in world coordinates. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint SecondPoint { get; set; } = new();

    /// <summary>Gets or sets the vertex of the angle, in world coordinates. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint ThirdPoint { get; set; } = new();

    /// <summary>Creates the object with its defaults.</summary>
    public CadAngularDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Angular3Point;
    }
}
