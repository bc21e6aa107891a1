using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An ellipse or elliptic arc.</summary>
[CadObject("ELLIPSE", Subclass = "AcDbEllipse")]
[CadBits(
    "3BD CenterPoint", "3BD MajorEndPoint", "3BD ExtrusionDirection", "BD AxisRatio", "BD StartAngle", "BD EndAngle")]
public partial class CadEllipse : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadEllipse()
    {
    }

    /// <summary>Gets or sets the centre, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint CenterPoint { get; set; } = new();

    /// <summary>Gets or sets the end of the major axis, relative to the centre. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint MajorEndPoint { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the unit normal of the plane of the ellipse. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the length of the minor axis as part of the major axis, up to 1. Group code
    /// 40.</summary>
    [CadDouble(40)]
    public double AxisRatio { get; set; } = 1;

    /// <summary>Gets or sets the parameter of the start, in radians; 0 for a full ellipse. Group code 41.</summary>
    [CadDouble(41)]
    public double StartAngle { get; set; }

    /// <summary>Gets or sets the parameter of the end, in radians; 2π for a full ellipse. Group code 42.</summary>
    [CadDouble(42)]
    public double EndAngle { get; set; } = System.Math.Tau;
}
