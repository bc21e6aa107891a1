using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A helix, kept together with the curve that draws it.</summary>
[CadObject("HELIX", Subclass = "AcDbHelix")]
[CadBits(
    "base", "BL MajorReleaseNumber", "BL MaintenanceReleaseNumber", "3BD AxisBasePoint", "3BD StartPoint",
    "3BD AxisVector", "BD Radius", "BD NumberOfTurns", "BD TurnHeight", "B Handedness", "RC Constrain")]
public partial class CadHelix : CadSpline
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadHelix()
    {
    }

    /// <summary>Gets or sets the major version of the object. Group code 90.</summary>
    [CadInt(90)]
    public int MajorReleaseNumber { get; set; } = 29;

    /// <summary>Gets or sets the minor version of the object. Group code 91.</summary>
    [CadInt(91)]
    public int MaintenanceReleaseNumber { get; set; } = 63;

    /// <summary>Gets or sets the foot of the axis, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint AxisBasePoint { get; set; } = new();

    /// <summary>Gets or sets the start of the curve, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint StartPoint { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the direction of the axis. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint AxisVector { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the radius. Group code 40.</summary>
    [CadDouble(40)]
    public double Radius { get; set; } = 1;

    /// <summary>Gets or sets the number of turns. Group code 41.</summary>
    [CadDouble(41)]
    public double NumberOfTurns { get; set; } = 1;

    /// <summary>Gets or sets the height of a turn. Group code 42.</summary>
    [CadDouble(42)]
    public double TurnHeight { get; set; } = 1;

    /// <summary>Gets or sets the sense: false left, true right. Group code 290.</summary>
    [CadBool(290)]
    public bool Handedness { get; set; } = true;

    /// <summary>Gets or sets what stays fixed when the helix changes. Group code 280.</summary>
    [CadShort(280)]
    public CadHelixLimitation Constrain { get; set; } = CadHelixLimitation.Turns;
}
