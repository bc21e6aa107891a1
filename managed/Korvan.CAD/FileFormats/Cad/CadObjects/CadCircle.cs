using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A circle.</summary>
[CadObject("CIRCLE", Subclass = "AcDbCircle")]
[CadBits("3BD CenterPoint", "BD Radius", "BT Thickness", "BE ExtrusionDirection")]
public partial class CadCircle : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadCircle()
    {
    }

    /// <summary>Gets or sets the centre, in object coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint CenterPoint { get; set; } = new();

    /// <summary>Gets or sets the radius. Group code 40.</summary>
    [CadDouble(40)]
    public double Radius { get; set; }
}
