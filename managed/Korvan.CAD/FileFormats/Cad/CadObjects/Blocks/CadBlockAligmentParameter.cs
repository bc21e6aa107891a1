using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that rotates the block to the objects it is placed at.</summary>
[CadSequence]
[CadObject("BLOCKALIGNMENTPARAMETER", Subclass = "AcDbBlockAlignmentParameter")]
[CadBits("base", "B AlignPerpendicular")]
public partial class CadBlockAligmentParameter : CadBlock2PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockAligmentParameter()
    {
    }

    /// <summary>Gets or sets whether the block is aligned perpendicularly instead of tangentially. Group code
    /// 280.</summary>
    [CadBool(280)]
    public bool AlignPerpendicular { get; set; }
}
