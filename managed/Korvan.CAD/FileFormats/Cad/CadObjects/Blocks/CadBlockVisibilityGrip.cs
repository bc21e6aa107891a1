using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The grip that shows the list of visibility states; its position is all there is to it.</summary>
[CadSequence]
[CadObject("BLOCKVISIBILITYGRIP", Subclass = "AcDbBlockVisibilityGrip")]
[CadBits("base")]
public partial class CadBlockVisibilityGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockVisibilityGrip()
    {
    }
}
