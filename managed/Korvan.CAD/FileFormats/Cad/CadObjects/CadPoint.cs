using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A point. How it is drawn is told by $PDMODE and $PDSIZE.</summary>
[CadObject("POINT", Subclass = "AcDbPoint")]
[CadBits("3BD CenterPoint", "BT Thickness", "BE ExtrusionDirection", "BD PointAngle")]
public partial class CadPoint : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPoint()
    {
    }

    /// <summary>Gets or sets the position, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint CenterPoint { get; set; } = new();

    /// <summary>Gets or sets the angle of the X axis of the point symbol, in degrees. Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double PointAngle { get; set; }
}
