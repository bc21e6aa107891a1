using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of a diameter.</summary>
[CadObject("DIMENSION", Subclass = "AcDbDiametricDimension")]
[CadBits("base", "3BD FarChordPoint", "3BD DefinitionPoint", "BD LeaderLength")]
public partial class CadDiametricDimension : CadDimensionBase
{
    /// <summary>Gets or sets the point of the circle opposite to the definition point, in world coordinates. Group
    /// code 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint FarChordPoint { get; set; } = new();

    /// <summary>Gets or sets the length of the leader. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double LeaderLength { get; set; }

    /// <summary>Creates the object with its defaults.</summary>
    public CadDiametricDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Diameter;
    }
}
