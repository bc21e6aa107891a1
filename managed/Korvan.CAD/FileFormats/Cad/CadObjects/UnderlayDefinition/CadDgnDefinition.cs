namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The DGN file and model that underlays show.</summary>
[CadObject("DGNDEFINITION")]
public partial class CadDgnDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDgnDefinition()
    {
    }
}
