using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A grip of a polar parameter; its position is all there is to it.</summary>
[CadSequence]
[CadObject("BLOCKPOLARGRIP", Subclass = "AcDbBlockPolarGrip")]
[CadBits("base")]
internal sealed partial class CadBlockPolarGrip : CadBlockGrip
{
}
