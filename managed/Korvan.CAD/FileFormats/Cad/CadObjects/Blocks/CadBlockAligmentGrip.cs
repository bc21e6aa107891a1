using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The grip of an alignment parameter.</summary>
[CadSequence]
[CadObject("BLOCKALIGNMENTGRIP", Subclass = "AcDbBlockAlignmentGrip")]
[CadBits("base", "BD DirectionX", "BD DirectionY", "BD DirectionZ")]
public partial class CadBlockAligmentGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockAligmentGrip()
    {
    }

    /// <summary>Gets or sets the direction of alignment along X. Group code 140.</summary>
    [CadDouble(140)]
    public double DirectionX { get; set; } = 1;

    /// <summary>Gets or sets the direction of alignment along Y. Group code 141.</summary>
    [CadDouble(141)]
    public double DirectionY { get; set; }

    /// <summary>Gets or sets the direction of alignment along Z. Group code 142.</summary>
    [CadDouble(142)]
    public double DirectionZ { get; set; }
}
