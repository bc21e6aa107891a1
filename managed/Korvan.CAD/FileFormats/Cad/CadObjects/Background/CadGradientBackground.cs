using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Background;

/// <summary>A background of a view that fades between colours from top to bottom.</summary>
[CadSequence]
[CadObject("GRADIENT_BACKGROUND", Subclass = "AcDbGradientBackground")]
[CadBits("BL Version", "BL ColorTop", "BL ColorMiddle", "BL ColorBottom", "BD Horizon", "BD Height", "BD Rotation")]
public partial class CadGradientBackground : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadGradientBackground()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets the colour at the top: 0xC2RRGGBB a true colour, 0xC3000000 plus the index of a colour.
    /// Group code 90.</summary>
    [CadInt(90)]
    public int ColorTop { get; set; }

    /// <summary>Gets or sets the colour in the middle. Group code 91.</summary>
    [CadInt(91)]
    public int ColorMiddle { get; set; }

    /// <summary>Gets or sets the colour at the bottom. Group code 92.</summary>
    [CadInt(92)]
    public int ColorBottom { get; set; }

    /// <summary>Gets or sets the position of the middle, 0 at the bottom to 1 at the top. Group code 140.</summary>
    [CadDouble(140)]
    public double Horizon { get; set; } = 0.5;

    /// <summary>Gets or sets the height of the middle as a part of the view, 0 for two colours. Group code
    /// 141.</summary>
    [CadDouble(141)]
    public double Height { get; set; } = 0.5;

    /// <summary>Gets or sets the rotation, in radians. Group code 142.</summary>
    [CadDouble(142)]
    public double Rotation { get; set; }
}
