using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A circular arc, drawn counterclockwise from its start to its end angle.</summary>
[CadObject("ARC", Subclass = "AcDbArc")]
[CadBits("base", "BD StartAngle", "BD EndAngle")]
public partial class CadArc : CadCircle
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadArc()
    {
    }

    /// <summary>Gets or sets the start angle, in degrees from the X axis of the object coordinate system. Group code
    /// 50.</summary>
    [CadAngle(50)]
    public double StartAngle { get; set; }

    /// <summary>Gets or sets the end angle, in degrees from the X axis of the object coordinate system. Group code
    /// 51.</summary>
    [CadAngle(51)]
    public double EndAngle { get; set; }
}
