namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A sheet of a DWF file below the drawing.</summary>
[CadObject("DWFUNDERLAY")]
public partial class CadDwfUnderlay : CadUnderlay
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDwfUnderlay()
    {
    }
}
