using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat surface.</summary>
[CadSequence]
[CadMarkers(Trailing = "AcDbPlaneSurface")]
[CadObject("PLANESURFACE", Subclass = "AcDbModelerGeometry")]
[CadBits("ExchangeModeler()", "BS UIsolines", "BS VIsolines")]
public partial class CadPlaneSurface : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPlaneSurface()
    {
    }

    /// <summary>Gets the fields of the modeler.</summary>
    [CadPart]
    internal ModelerFields Modeler => new(this);

    /// <summary>Gets or sets the number of lines along U. Group code 71.</summary>
    [CadShort(71)]
    [CadSubclass("AcDbSurface")]
    public short UIsolines { get; set; } = 6;

    /// <summary>Gets or sets the number of lines along V. Group code 72.</summary>
    [CadShort(72)]
    public short VIsolines { get; set; } = 6;
}
