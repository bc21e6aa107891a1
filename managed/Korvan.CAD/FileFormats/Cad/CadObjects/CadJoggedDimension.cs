using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension of a large radius with a jog in its line.</summary>
[CadObject("LARGE_RADIAL_DIMENSION", Subclass = "AcDbRadialDimensionLarge")]
[CadBits("base", "3BD DefinitionPoint", "3BD ChordPoint", "BD JogAngle", "3BD OverrideCenter", "3BD JogPoint")]
public partial class CadJoggedDimension : CadDimensionBase
{
    /// <summary>Gets or sets the point that replaces the centre, in world coordinates. Group codes 13, 23,
    /// 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint OverrideCenter { get; set; } = new();

    /// <summary>Gets or sets the position of the jog, in world coordinates. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint JogPoint { get; set; } = new();

    /// <summary>Gets or sets a point of the circle, in world coordinates. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint ChordPoint { get; set; } = new();

    /// <summary>Gets or sets the angle of the jog, in radians. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double JogAngle { get; set; }

    /// <summary>Creates the object with its defaults.</summary>
    public CadJoggedDimension()
    {
        TypeOfDimension = JoggedType;
    }
}
