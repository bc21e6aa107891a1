namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The PDF file and page that underlays show.</summary>
[CadObject("PDFDEFINITION")]
public partial class CadPdfDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPdfDefinition()
    {
    }
}
