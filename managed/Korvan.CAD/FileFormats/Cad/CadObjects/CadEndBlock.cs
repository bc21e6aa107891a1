using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Ends a block in files.</summary>
[CadObject("ENDBLK", Subclass = "AcDbBlockEnd")]
[CadBits]
internal sealed partial class CadEndBlock : CadEntityBase;
