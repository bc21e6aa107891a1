using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of a radius; the definition point is the centre.</summary>
[CadObject("DIMENSION", Subclass = "AcDbRadialDimension")]
[CadBits("base", "3BD DefinitionPoint", "3BD ChordPoint", "BD LeaderLength")]
public partial class CadRadialDimension : CadDimensionBase
{
    /// <summary>Gets or sets a point of the circle, in world coordinates. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint ChordPoint { get; set; } = new();

    /// <summary>Gets or sets the length of the leader. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double LeaderLength { get; set; }

    /// <summary>Creates the object with its defaults.</summary>
    public CadRadialDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Radius;
    }
}
