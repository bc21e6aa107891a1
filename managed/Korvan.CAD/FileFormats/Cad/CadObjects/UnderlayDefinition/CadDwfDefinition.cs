namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The DWF file and sheet that underlays show.</summary>
[CadObject("DWFDEFINITION")]
public partial class CadDwfDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDwfDefinition()
    {
    }
}
