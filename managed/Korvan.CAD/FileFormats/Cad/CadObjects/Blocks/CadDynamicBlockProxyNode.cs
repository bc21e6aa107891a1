using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A node of a dynamic block in the place of one that the program that wrote it does not know.</summary>
[CadSequence]
[CadObject("ACDB_DYNAMICBLOCKPROXYNODE", Subclass = "AcDbDynamicBlockProxyNode")]
[CadBits("base")]
internal sealed partial class CadDynamicBlockProxyNode : CadDbEvalExpr
{
}
