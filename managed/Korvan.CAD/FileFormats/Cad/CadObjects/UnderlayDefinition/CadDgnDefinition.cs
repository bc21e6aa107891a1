using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.UnderlayDefinition;

/// <summary>The DGN file and model that underlays show.</summary>
[CadObject("DGNDEFINITION")]
[CadBits("base")]
public partial class CadDgnDefinition : CadUnderlayDefinition
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDgnDefinition()
    {
    }
}
