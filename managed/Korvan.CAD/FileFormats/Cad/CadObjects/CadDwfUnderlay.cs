using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A sheet of a DWF file below the drawing.</summary>
[CadObject("DWFUNDERLAY")]
[CadBits("base")]
public partial class CadDwfUnderlay : CadUnderlay
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDwfUnderlay()
    {
    }
}
