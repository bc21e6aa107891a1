namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Ends a block in files.</summary>
[CadObject("ENDBLK", Subclass = "AcDbBlockEnd")]
internal sealed partial class CadEndBlock : CadEntityBase;
