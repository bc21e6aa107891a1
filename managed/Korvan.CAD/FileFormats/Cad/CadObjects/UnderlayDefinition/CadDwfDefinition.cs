using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The DWF file and sheet that underlays show.</summary>
[CadObject("DWFDEFINITION")]
[CadBits("base")]
public partial class CadDwfDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDwfDefinition()
    {
    }
}
