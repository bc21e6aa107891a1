using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The grip of a rotation parameter; its position is all there is to it.</summary>
[CadSequence]
[CadObject("BLOCKROTATIONGRIP", Subclass = "AcDbBlockRotationGrip")]
[CadBits("base")]
public partial class CadBlockRotationGrip : CadBlockGrip
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockRotationGrip()
    {
    }
}
