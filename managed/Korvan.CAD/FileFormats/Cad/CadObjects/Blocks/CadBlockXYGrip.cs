using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A grip of a point parameter or of a parameter of two distances; its position is all there is to
/// it.</summary>
[CadSequence]
[CadObject("BLOCKXYGRIP", Subclass = "AcDbBlockXYGrip")]
[CadBits("base")]
public partial class CadBlockXYGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockXYGrip()
    {
    }
}
