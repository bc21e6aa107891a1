using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The grip of a flip parameter.</summary>
[CadSequence]
[CadObject("BLOCKFLIPGRIP", Subclass = "AcDbBlockFlipGrip")]
[CadBits("base", "BL CombinedState", "BD DirectionX", "BD DirectionY", "BD DirectionZ")]
public partial class CadBlockFlipGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockFlipGrip()
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

    /// <summary>Gets or sets the index of the node with the state. Group code 93.</summary>
    [CadInt(93)]
    public int CombinedState { get; set; }
}
