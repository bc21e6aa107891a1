using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line that runs on for ever from its start.</summary>
[CadObject("RAY", Subclass = "AcDbRay")]
[CadBits("3BD FirstPoint", "3BD UnitDirection")]
public partial class CadRay : CadBaseInfinityEntity
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRay()
    {
    }
}
