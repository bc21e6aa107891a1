using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A grip of a linear parameter.</summary>
[CadSequence]
[CadObject("BLOCKLINEARGRIP", Subclass = "AcDbBlockLinearGrip")]
[CadBits("base", "BD DirectionX", "BD DirectionY", "BD DirectionZ")]
public partial class CadBlockLinearGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockLinearGrip()
    {
    }

    /// <summary>Gets or sets the direction of the arrow along X. Group code 140.</summary>
    [CadDouble(140)]
    public double DirectionX { get; set; } = 1;

    /// <summary>Gets or sets the direction of the arrow along Y. Group code 141.</summary>
    [CadDouble(141)]
    public double DirectionY { get; set; }

    /// <summary>Gets or sets the direction of the arrow along Z. Group code 142.</summary>
    [CadDouble(142)]
    public double DirectionZ { get; set; }
}
