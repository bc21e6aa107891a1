using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The PDF file and page that underlays show.</summary>
[CadObject("PDFDEFINITION")]
[CadBits("base")]
public partial class CadPdfDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPdfDefinition()
    {
    }
}
