using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of the angle between two lines; the second line ends at the definition point.</summary>
[CadObject("DIMENSION", Subclass = "AcDb2LineAngularDimension")]
[CadBits("base", "2RD ArcPoint", "3BD FirstPoint", "3BD SecondPoint", "3BD ThirdPoint", "3BD DefinitionPoint")]
public partial class Cad2LineAngularDimension : CadDimensionBase
{
    /// <summary>Gets or sets the start of the first line, in world coordinates. Group codes 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the end of the first line, in world coordinates. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint SecondPoint { get; set; } = new();

    /// <summary>Gets or sets the start of the second line, in world coordinates. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint ThirdPoint { get; set; } = new();

    /// <summary>Gets or sets a point of the dimension arc, in object coordinates. Group codes 16, 26, 36.</summary>
    [Cad3DPoint(16)]
    public Cad3DPoint ArcPoint { get; set; } = new();

    /// <summary>Creates the object with its defaults.</summary>
    public Cad2LineAngularDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Angular;
    }
}
