using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of the length of an arc.</summary>
[CadObject("ARC_DIMENSION", Subclass = "AcDbArcDimension")]
[CadBits(
    "base", "3BD DefinitionPoint", "3BD FirstExtensionPoint", "3BD SecondExtensionPoint", "3BD ArcCenter",
    "B IsPartial", "BD StartAngle", "BD EndAngle", "B HasLeader", "3BD LeaderStart", "3BD LeaderEnd")]
public partial class CadArcLengthDimension : CadDimensionBase
{
    /// <summary>Gets or sets the start of the first extension line, in world coordinates. Group codes 13, 23,
    /// 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FirstExtensionPoint { get; set; } = new();

    /// <summary>Gets or sets the start of the second extension line, in world coordinates. Group codes 14, 24,
    /// 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint SecondExtensionPoint { get; set; } = new();

    /// <summary>Gets or sets the centre of the arc, in world coordinates. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint ArcCenter { get; set; } = new();

    /// <summary>Gets or sets whether only a part of the arc is measured. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short IsPartial { get; set; }

    /// <summary>Gets or sets the start of the arc, in radians. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double StartAngle { get; set; }

    /// <summary>Gets or sets the end of the arc, in radians. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double EndAngle { get; set; }

    /// <summary>Gets or sets whether there is a leader. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short HasLeader { get; set; }

    /// <summary>Gets or sets the start of the leader, in world coordinates. Group codes 16, 26, 36.</summary>
    [Cad3DPoint(16, Optional = true)]
    public Cad3DPoint LeaderStart { get; set; } = new();

    /// <summary>Gets or sets the end of the leader, in world coordinates. Group codes 17, 27, 37.</summary>
    [Cad3DPoint(17, Optional = true)]
    public Cad3DPoint LeaderEnd { get; set; } = new();

    /// <summary>Creates the object with its defaults.</summary>
    public CadArcLengthDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Angular3Point;
    }
}
