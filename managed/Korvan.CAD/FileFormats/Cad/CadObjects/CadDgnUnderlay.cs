using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A model of a DGN file below the drawing.</summary>
[CadObject("DGNUNDERLAY")]
[CadBits("base")]
public partial class CadDgnUnderlay : CadUnderlay
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDgnUnderlay()
    {
    }
}
