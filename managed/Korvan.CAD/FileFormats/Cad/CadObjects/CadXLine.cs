using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line that runs on for ever both ways.</summary>
[CadObject("XLINE", Subclass = "AcDbXline")]
[CadBits("3BD FirstPoint", "3BD UnitDirection")]
public partial class CadXLine : CadBaseInfinityEntity
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadXLine()
    {
    }
}
